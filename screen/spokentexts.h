#pragma once

#include <QStringList>

namespace morrowleaf {

class QuoteScreen;

// What the screen reads out, in order; its painted texts are no widgets.
struct SpokenTexts {
    QString quotation;
    QString author;
    QString greeting;
    QString date;
    QString hint;

    QStringList all() const { return {greeting, date, quotation, author, hint}; }
};

// Makes quote screens speak to assistive technology; once is enough.
void installQuoteScreenAccessibility();

// Tells assistive technology that the texts have changed.
void announceSpokenTexts(QuoteScreen& screen);

} // namespace morrowleaf
