// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "backdrop/backdropstate.h"
#include "base/moment.h"
#include "base/randomindex.h"
#include "quotes/quote.h"
#include "screen/frameclock.h"
#include "screen/spokentexts.h"

#include <QWidget>

#include <functional>
#include <memory>
#include <optional>

namespace morrowleaf {

class BGStore;
class FontBook;
class QuoteView;
class SettingsStore;

// What a quote screen needs of the world; all of it outlives the screen.
struct ScreenSurroundings {
    SettingsStore& store;
    const FontBook& fonts;
    BGStore& photos;
    Clock clock;
    RandomIndex random;
    QuoteLoader loader;
    Monotonic monotonic = steadySeconds(); // times the entrances
};

// Builds the appearance editor as a child of the screen; the screen places it
// at its right edge.
using InspectorFactory = std::function<QWidget*(QWidget* parent, std::function<void()> onDone)>;
inline constexpr int inspectorWidth = 320; // points

// The whole content of the quote window: the quotation over its backdrop and,
// while editing, the appearance editor. Its entrance begins with the first
// frame that is drawn; to replay it, build a new screen.
class QuoteScreen : public QWidget, public SpeakingWidget {
    Q_OBJECT

public:
    struct Editing {
        InspectorFactory inspector;
        std::function<void()> onDone;
    };
    explicit QuoteScreen(const ScreenSurroundings& surroundings,
                         std::optional<Editing> editing = std::nullopt, QWidget* parent = nullptr);
    ~QuoteScreen() override;

    // What lies behind the window; may be called again when a capture arrives.
    void setBehind(const Behind& behind);

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
