// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QTranslator>

namespace morrowleaf {

// A language that everybody can read, with the troubles of real ones: every text is in
// brackets, has accents and is 40 % longer than in English.
class PseudoTranslator : public QTranslator {
public:
    static constexpr QChar first = u'⟦';
    static constexpr QChar last = u'⟧';

    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* source, const char* /*disambiguation*/,
                      int /*n*/) const override {
        // Texts of Qt, one of which is the direction of windows.
        if (qstrncmp(context, "Q", 1) == 0) {
            return {};
        }
        const QString text = QString::fromUtf8(source);
        QString accented = first;
        bool isPlaceholder = false;
        for (const QChar c : text) {
            accented += isPlaceholder ? c : accentOn(c);
            isPlaceholder = c == u'%';
        }
        for (qsizetype added = 2; added < text.size() * 2 / 5; ++added) {
            accented += added % 6 == 0 ? u' ' : u'ñ';
        }
        return accented + last;
    }

private:
    static QChar accentOn(QChar c) {
        constexpr QStringView plain = u"aceginorstuyzACDEGINORSTUYZ";
        constexpr QStringView accents = u"áçéğîñöřšţûýžÁÇĎÉĞÎÑÖŘŠŢÛÝŽ";
        const qsizetype at = plain.indexOf(c);
        return at < 0 ? c : accents[at];
    }
};

} // namespace morrowleaf
