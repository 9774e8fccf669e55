// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

// Prints the windows on the screen from front to back: owner, level, bounds.
//
//     swift windows.swift
import CoreGraphics

let windows = CGWindowListCopyWindowInfo([.optionOnScreenOnly], kCGNullWindowID) as? [[String: Any]]
for window in windows ?? [] {
    let owner = window[kCGWindowOwnerName as String] as? String ?? "?"
    let level = window[kCGWindowLayer as String] as? Int ?? 0
    let bounds = window[kCGWindowBounds as String] as? [String: Double] ?? [:]
    let place = ["X", "Y", "Width", "Height"].map { String(Int(bounds[$0] ?? 0)) }
    print(owner, level, place.joined(separator: " "))
}
