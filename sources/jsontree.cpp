// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "sources/jsontree.h"

#include "sources/utf8.h"

namespace morrowleaf {

JsonTree::Node JsonTree::after(Node node) const {
    const Entry& entry = entries_[node];
    const bool container = entry.kind == Kind::Object || entry.kind == Kind::ObjectList ||
                           entry.kind == Kind::MixedList;
    return container ? entry.extent : node + 1;
}

std::optional<JsonTree::Node> JsonTree::member(Node object, std::string_view name) const {
    std::optional<Node> found;
    for (Node at = object + 1; at < entries_[object].extent; at = after(at)) {
        if (names_[entries_[at].name] == name) {
            found = at;
        }
    }
    return found;
}

JsonTree::Node JsonTree::element(Node list, qsizetype index) const {
    Node at = list + 1;
    for (; index > 0; --index) {
        at = after(at);
    }
    return at;
}

QString JsonTree::string(Node node) const {
    const Entry& entry = entries_[node];
    return decodeUtf8(QByteArrayView(bytes_).sliced(entry.text, entry.extent));
}

} // namespace morrowleaf
