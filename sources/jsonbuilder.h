// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "sources/jsontree.h"

#include <string>
#include <vector>

namespace morrowleaf {

// Takes the events of a JSON reader and grows a JsonTree from them. Every
// event returns whether to read on.
class JsonTreeBuilder {
public:
    JsonTreeBuilder(std::span<const std::string_view> names, std::size_t entryLimit);

    bool scalar();
    bool string(std::string_view value);
    bool key(std::string_view name);
    bool startContainer(JsonTree::Kind kind);
    bool endContainer();

    bool overflowed() const { return overflowed_; }
    JsonTree take() { return std::move(tree_); }

private:
    static constexpr std::uint8_t noName = 255;
    static constexpr int maxDepth = 512;

    bool wanted(JsonTree::Kind kind);
    bool append(JsonTree::Kind kind, std::size_t text, std::size_t extent);

    JsonTree tree_;
    std::vector<JsonTree::Node> open_; // the kept containers around the next value
    std::size_t entryLimit_;
    int depth_ = 0;
    int skippedFrom_ = 0; // the depth of an outermost container not kept; 0: none
    std::uint8_t name_ = noName;
    bool overflowed_ = false;
};

} // namespace morrowleaf
