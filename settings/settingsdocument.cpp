// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "settings/settingsdocument.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

namespace morrowleaf {

namespace {

// JSON text of a single value, laid out as a member one level deep.
QByteArray valueText(const QJsonValue& value) {
    const QByteArray open = "[\n    ";
    const QByteArray close = "\n]\n";
    const QByteArray list = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Indented);
    return list.mid(open.size(), list.size() - open.size() - close.size());
}

QString unquoted(const QByteArray& name) {
    return QJsonDocument::fromJson('[' + name + ']').array().at(0).toString();
}

} // namespace

// Cuts a text that is known to be a valid JSON object into its members. Every
// step is bounded by the text's end all the same.
class SettingsDocument::Scanner {
public:
    explicit Scanner(const QByteArray& text)
        : text_(text) {}

    bool scan(SettingsDocument& into) {
        if (text_.startsWith("\xEF\xBB\xBF")) {
            at_ = 3;
        }
        blanks();
        if (!step('{')) {
            return false;
        }
        into.head_ = text_.left(at_ - 1);
        QByteArray lead = blanks();
        while (peek() == '"') {
            Member member;
            member.lead = std::exchange(lead, QByteArray());
            member.name = string();
            member.key = unquoted(member.name);
            const qsizetype colon = at_;
            blanks();
            if (!step(':')) {
                return false;
            }
            blanks();
            member.colon = since(colon);
            member.value = value();
            member.trail = blanks();
            into.members_.push_back(std::move(member));
            if (!step(',')) {
                break;
            }
            lead = blanks();
        }
        if (!step('}')) {
            return false;
        }
        into.inside_ = lead;
        into.tail_ = text_.mid(at_);
        return true;
    }

private:
    char peek() const { return at_ < text_.size() ? text_.at(at_) : '\0'; }
    QByteArray since(qsizetype from) const { return text_.mid(from, at_ - from); }

    bool step(char expected) {
        if (peek() != expected) {
            return false;
        }
        ++at_;
        return true;
    }

    QByteArray blanks() {
        const qsizetype from = at_;
        while (peek() == ' ' || peek() == '\t' || peek() == '\n' || peek() == '\r') {
            ++at_;
        }
        return since(from);
    }

    QByteArray string() {
        const qsizetype from = at_++;
        while (at_ < text_.size() && text_.at(at_) != '"') {
            at_ += text_.at(at_) == '\\' ? 2 : 1;
        }
        at_ = std::min(at_ + 1, text_.size());
        return since(from);
    }

    QByteArray value() {
        const qsizetype from = at_;
        qsizetype depth = 0;
        while (at_ < text_.size()) {
            const char c = text_.at(at_);
            if (c == '"') {
                string();
                continue;
            }
            if (depth == 0 && (c == ',' || c == '}')) {
                break;
            }
            if (c == '{' || c == '[') {
                ++depth;
            } else if (c == '}' || c == ']') {
                --depth;
            }
            ++at_;
        }
        while (at_ > from && QByteArrayView(" \t\r\n").contains(text_.at(at_ - 1))) {
            --at_;
        }
        return since(from);
    }

    const QByteArray& text_;
    qsizetype at_ = 0;
};

std::optional<SettingsDocument> SettingsDocument::parse(const QByteArray& text) {
    const QJsonDocument json = QJsonDocument::fromJson(text);
    SettingsDocument document;
    if (!json.isObject() || !Scanner(text).scan(document)) {
        return std::nullopt;
    }
    document.values_ = json.object();
    return document;
}

QByteArray SettingsDocument::text() const {
    QByteArray text = head_ + '{';
    if (members_.empty()) {
        text += inside_;
    }
    for (auto it = members_.begin(); it != members_.end(); ++it) {
        if (it != members_.begin()) {
            text += ',';
        }
        text += it->lead + it->name + it->colon + it->value + it->trail;
    }
    return text + '}' + tail_;
}

void SettingsDocument::apply(const QString& key, const QJsonValue& value) {
    if (value == values_.value(key)) {
        return;
    }
    if (value.isUndefined()) {
        erase(key);
        values_.remove(key);
    } else {
        write(key, value);
        values_.insert(key, value);
    }
}

void SettingsDocument::write(const QString& key, const QJsonValue& value) {
    const auto named = [&key](const Member& member) { return member.key == key; };
    // The last of several is the one in force.
    const auto found = std::find_if(members_.rbegin(), members_.rend(), named);
    if (found != members_.rend()) {
        found->value = valueText(value);
        return;
    }
    Member added{key, "\n    ", valueText(key), ": ", valueText(value), "\n"};
    if (!members_.empty()) {
        Member& last = members_.back();
        added.lead = last.lead;
        added.colon = last.colon;
        added.trail = std::exchange(last.trail, QByteArray());
    }
    members_.push_back(std::move(added));
}

void SettingsDocument::erase(const QString& key) {
    const QByteArray trail = members_.empty() ? QByteArray() : members_.back().trail;
    std::erase_if(members_, [&key](const Member& member) { return member.key == key; });
    if (!members_.empty()) {
        members_.back().trail = trail;
    }
}

} // namespace morrowleaf
