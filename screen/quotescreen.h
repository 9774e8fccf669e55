// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "backdrop/backdropstate.h"
#include "base/moment.h"
#include "screen/frameclock.h"
#include "screen/spokentexts.h"

#include <QWidget>

#include <memory>

namespace morrowleaf {

class BGStore;
class FontBook;
class QuoteBox;
class QuoteView;
class SettingsStore;

inline constexpr int inspectorWidth = 320; // points

// The whole content of the quote window: the quotation over its backdrop and,
// while editing, the appearance editor. Its entrance begins with the first
// frame that is drawn; to replay it, build a new screen.
class QuoteScreen : public QWidget, public SpeakingWidget {
    Q_OBJECT

public:
    // Shows the quotation of `box`, with the date and the greeting of `clock`;
    // `frames` times the entrances, and is told the rate of the display. The
    // referenced objects outlive the screen.
    QuoteScreen(SettingsStore& store, const FontBook& fonts, BGStore& photos,
                std::unique_ptr<QuoteBox> box, Clock clock, FrameClock& frames,
                QWidget* parent = nullptr);
    ~QuoteScreen() override;

    // Takes over the appearance editor, which slides in at the right edge while
    // the quotation keeps clear of it. Call before the first frame.
    void setInspector(QWidget* inspector);
    // What lies behind the window; may be called again when a capture arrives.
    void setBehind(const Behind& behind);
    const Behind& behind() const;

    // Null before the first frame.
    const QuoteView* view() const;
    // Whether another frame has been asked for.
    bool awake() const;

    SpokenTexts spokenTexts() const override;
    QList<QRect> spokenRects() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    struct Private;
    std::unique_ptr<Private> d_;
};

} // namespace morrowleaf
