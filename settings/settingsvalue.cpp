// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "settings/settingsvalue.h"

#include <QJsonArray>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <locale>
#include <sstream>

namespace morrowleaf {

namespace {

// The first value that is too large; the largest one is no double.
constexpr double integerLimit = 9223372036854775808.0;

qint64 truncated(double real) {
    if (std::isnan(real)) {
        return 0;
    }
    if (real >= integerLimit) {
        return std::numeric_limits<qint64>::max();
    }
    if (real < -integerLimit) {
        return std::numeric_limits<qint64>::min();
    }
    return static_cast<qint64>(real);
}

double finite(double real) {
    if (std::isnan(real)) {
        return 0;
    }
    return std::clamp(real, std::numeric_limits<double>::lowest(),
                      std::numeric_limits<double>::max());
}

// Walks over the number at the start of a text and copies what belongs to it.
class NumericPrefix {
public:
    explicit NumericPrefix(const QString& text)
        : text_(text) {
        while (at_ < text_.size() && text_.at(at_).isSpace()) {
            ++at_;
        }
        if (peek() == u'-') {
            copied_ += '-';
        }
        if (peek() == u'-' || peek() == u'+') {
            ++at_;
        }
    }

    QByteArray integer() {
        digits();
        return copied_;
    }

    QByteArray real() {
        qsizetype count = digits();
        if (peek() == u'.') {
            take();
            count += digits();
        }
        if (count == 0) {
            return {};
        }
        exponent();
        return copied_;
    }

private:
    char16_t peek() const { return at_ < text_.size() ? text_.at(at_).unicode() : u'\0'; }

    void take() {
        copied_ += static_cast<char>(peek());
        ++at_;
    }

    qsizetype digits() {
        const qsizetype from = at_;
        while (peek() >= u'0' && peek() <= u'9') {
            take();
        }
        return at_ - from;
    }

    // An "e" counts only with digits behind it.
    void exponent() {
        const QByteArray mantissa = copied_;
        if (peek() != u'e' && peek() != u'E') {
            return;
        }
        take();
        if (peek() == u'-' || peek() == u'+') {
            take();
        }
        if (digits() == 0) {
            copied_ = mantissa;
        }
    }

    const QString& text_;
    qsizetype at_ = 0;
    QByteArray copied_;
};

qint64 integerPrefix(const QString& text) {
    const QByteArray number = NumericPrefix(text).integer();
    qint64 parsed = 0;
    const auto [end, error] =
        std::from_chars(number.constData(), number.constData() + number.size(), parsed);
    if (error == std::errc::result_out_of_range) {
        return number.startsWith('-') ? std::numeric_limits<qint64>::min()
                                      : std::numeric_limits<qint64>::max();
    }
    return parsed;
}

double realPrefix(const QString& text) {
    std::istringstream number(NumericPrefix(text).real().toStdString());
    number.imbue(std::locale::classic());
    double parsed = 0;
    number >> parsed; // the largest double, or zero, where it is out of range
    return finite(parsed);
}

} // namespace

qint64 toInteger(const QJsonValue& value) {
    switch (value.type()) {
    case QJsonValue::Bool:
        return value.toBool() ? 1 : 0;
    case QJsonValue::Double:
        // Exact for integers beyond what a double can hold.
        return value.toInteger(truncated(value.toDouble()));
    case QJsonValue::String:
        return integerPrefix(value.toString());
    default:
        return 0;
    }
}

double toReal(const QJsonValue& value) {
    switch (value.type()) {
    case QJsonValue::Bool:
        return value.toBool() ? 1 : 0;
    case QJsonValue::Double:
        return finite(value.toDouble());
    case QJsonValue::String:
        return realPrefix(value.toString());
    default:
        return 0;
    }
}

bool toFlag(const QJsonValue& value) {
    switch (value.type()) {
    case QJsonValue::Bool:
        return value.toBool();
    case QJsonValue::Double:
        return toReal(value) != 0;
    case QJsonValue::String: {
        const QString text = value.toString();
        return text == QLatin1StringView("1") ||
               text.compare(QLatin1StringView("yes"), Qt::CaseInsensitive) == 0 ||
               text.compare(QLatin1StringView("true"), Qt::CaseInsensitive) == 0;
    }
    default:
        return false;
    }
}

std::optional<QString> toText(const QJsonValue& value) {
    return value.isString() ? std::optional(value.toString()) : std::nullopt;
}

std::optional<QStringList> toTextList(const QJsonValue& value) {
    if (!value.isArray()) {
        return std::nullopt;
    }
    QStringList texts;
    const QJsonArray elements = value.toArray();
    for (const auto& element : elements) {
        if (!element.isString()) {
            return std::nullopt;
        }
        texts.append(element.toString());
    }
    return texts;
}

} // namespace morrowleaf
