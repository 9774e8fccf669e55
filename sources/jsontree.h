// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArrayView>
#include <QString>

#include <cstddef>
#include <cstdint>
#include <deque>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace morrowleaf {

// The relevant part of a JSON document: containers and strings under a few names, in
// document order, in one flat list. A document of 4 MiB therefore takes about 20 MiB at
// most, whatever its structure, and no function recurses.
class JsonTree {
public:
    using Node = std::uint32_t; // an index into the list; the root is 0

    enum class Kind : std::uint8_t {
        Scalar, // a number, true, false or null
        String,
        Object,
        ObjectList, // an array of objects and nothing else; may be empty
        MixedList,  // any other array; its elements are not kept
    };

    Kind kind(Node node) const { return entries_[node].kind; }
    // The last member with this name; std::nullopt if there is none.
    std::optional<Node> member(Node object, std::string_view name) const;
    // Of an ObjectList.
    qsizetype count(Node list) const { return entries_[list].text; }
    Node element(Node list, qsizetype index) const;
    QString string(Node node) const;

private:
    friend class JsonTreeBuilder;

    struct Entry {
        std::uint32_t text = 0;   // a string's offset in bytes_; a list's count
        std::uint32_t extent = 0; // a string's length; a container's end in the list
        Kind kind = Kind::Scalar;
        std::uint8_t name = 0; // index into names_; meaningless for elements
    };

    Node after(Node node) const;

    std::span<const std::string_view> names_;
    std::deque<Entry> entries_; // a deque grows without copying
    std::string bytes_;
};

enum class JsonVerdict { Read, NotJson, TooLarge };

struct JsonReading {
    JsonVerdict verdict = JsonVerdict::NotJson;
    JsonTree tree; // only when the verdict is Read
};

// Reads a strict JSON document whose top level is an array or an object, in UTF-8, UTF-16
// or UTF-32, with at most 512 levels. Keeps only members with one of `names` (fewer than
// 255; they must outlive the tree). Numbers may have any magnitude. TooLarge: the tree
// would need more than `entryLimit` entries. Any thread.
JsonReading readJson(QByteArrayView body, std::span<const std::string_view> names,
                     std::size_t entryLimit = 1'500'000);

} // namespace morrowleaf
