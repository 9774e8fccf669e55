// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "backdrop/backdropstate.h"
#include "base/moment.h"
#include "platform/desktopwishes.h"
#include "platform/overlaywindow.h"
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
// while editing, the appearance editor. Its entrance begins with the first frame
// that is drawn; to replay it, create a new screen.
class QuoteScreen : public QWidget, public SpeakingWidget {
    Q_OBJECT

public:
    // Shows the quotation of `box`, with the date and the greeting for the time
    // of `clock`. `frames` times the entrances; the screen sets its rate to that
    // of the display. The referenced objects must outlive the screen.
    QuoteScreen(SettingsStore& store, const FontBook& fonts, BGStore& photos,
                std::unique_ptr<QuoteBox> box, Clock clock, FrameClock& frames,
                QWidget* parent = nullptr);
    ~QuoteScreen() override;

    // Takes ownership of the appearance editor, which slides in at the right edge;
    // the quotation is laid out to the left of it. Call before the first frame.
    void setInspector(QWidget* inspector);
    // Sets what shows behind the window. May be called again when a capture arrives.
    void setDesktopView(const DesktopView& desktop);
    const DesktopView& desktopView() const;

    // What the desktop wishes of all programs; may change at any time.
    void setWishes(const Wishes& wishes);

    // Null before the first frame.
    const QuoteView* view() const;
    // Whether another frame is scheduled.
    bool isAnimating() const;

    SpokenTexts spokenTexts() const override;
    QList<QRect> spokenRects() const override;

signals:
    // What the system has to draw behind this screen, also if it is what it has drawn so
    // far. Emitted while the screen paints.
    void systemBackdropWanted(const morrowleaf::SystemBackdrop& backdrop);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    struct Private;
    std::unique_ptr<Private> d_;
};

} // namespace morrowleaf
