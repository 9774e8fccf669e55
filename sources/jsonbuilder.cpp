// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "sources/jsonbuilder.h"

#include <algorithm>

namespace morrowleaf {

using Kind = JsonTree::Kind;

JsonTreeBuilder::JsonTreeBuilder(std::span<const std::string_view> names, std::size_t entryLimit)
    : entryLimit_(entryLimit) {
    tree_.names_ = names;
}

// Whether the value that comes next is kept; an array that holds anything but
// objects loses what was kept of it.
bool JsonTreeBuilder::wanted(Kind kind) {
    if (skippedFrom_ > 0) {
        return false;
    }
    if (open_.empty()) {
        return true;
    }
    JsonTree::Entry& around = tree_.entries_[open_.back()];
    switch (around.kind) {
    case Kind::Object:
        return name_ != noName;
    case Kind::ObjectList:
        if (kind == Kind::Object) {
            return true;
        }
        around.kind = Kind::MixedList;
        tree_.entries_.resize(open_.back() + 1);
        return false;
    default:
        return false;
    }
}

bool JsonTreeBuilder::append(Kind kind, std::size_t text, std::size_t extent) {
    if (tree_.entries_.size() >= entryLimit_) {
        overflowed_ = true;
        return false;
    }
    if (!open_.empty() && tree_.entries_[open_.back()].kind == Kind::ObjectList) {
        ++tree_.entries_[open_.back()].text;
        name_ = noName;
    }
    tree_.entries_.push_back(
        {static_cast<std::uint32_t>(text), static_cast<std::uint32_t>(extent), kind, name_});
    return true;
}

bool JsonTreeBuilder::scalar() {
    return depth_ > 0 && (!wanted(Kind::Scalar) || append(Kind::Scalar, 0, 0));
}

bool JsonTreeBuilder::string(std::string_view value) {
    if (depth_ == 0) {
        return false;
    }
    if (!wanted(Kind::String)) {
        return true;
    }
    const std::size_t place = tree_.bytes_.size();
    tree_.bytes_.append(value);
    return append(Kind::String, place, value.size());
}

bool JsonTreeBuilder::key(std::string_view name) {
    const auto found = std::find(tree_.names_.begin(), tree_.names_.end(), name);
    name_ = found == tree_.names_.end() ? noName
                                        : static_cast<std::uint8_t>(found - tree_.names_.begin());
    return true;
}

bool JsonTreeBuilder::startContainer(Kind kind) {
    if (++depth_ > maxDepth) {
        return false;
    }
    if (!wanted(kind)) {
        skippedFrom_ = skippedFrom_ > 0 ? skippedFrom_ : depth_;
        return true;
    }
    const auto node = static_cast<JsonTree::Node>(tree_.entries_.size());
    if (!append(kind, 0, 0)) {
        return false;
    }
    open_.push_back(node);
    return true;
}

bool JsonTreeBuilder::endContainer() {
    const int closed = depth_--;
    if (skippedFrom_ > 0) {
        skippedFrom_ = skippedFrom_ == closed ? 0 : skippedFrom_;
        return true;
    }
    tree_.entries_[open_.back()].extent = static_cast<std::uint32_t>(tree_.entries_.size());
    open_.pop_back();
    return true;
}

} // namespace morrowleaf
