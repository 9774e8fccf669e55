// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QRect>
#include <QStringList>

class QWidget;

namespace morrowleaf {

// The texts that the quote screen paints, for screen readers.
struct SpokenTexts {
    QString quotation;
    QString author;
    QString greeting;
    QString date;
    QString hint;

    // In the order in which they are read out.
    QStringList all() const { return {greeting, date, quotation, author, hint}; }
};

// A widget that paints its texts itself, so that Qt cannot pass them on to screen
// readers.
class SpeakingWidget {
public:
    virtual SpokenTexts spokenTexts() const = 0;
    // Their places in the widget, in the order of SpokenTexts::all().
    virtual QList<QRect> spokenRects() const = 0;

protected:
    ~SpeakingWidget() = default;
};

// Makes the texts of every SpeakingWidget available to assistive technology. Call
// it before the first one is shown; further calls have no effect.
void installSpokenTexts();

// Notifies assistive technology that the texts of `widget` have changed.
void announceSpokenTexts(QWidget& widget);

} // namespace morrowleaf
