// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "screen/quotescreen.h"

#include "backdrop/glass.h"
#include "backdrop/systembackdrop.h"
#include "photos/bgstore.h"
#include "quotes/quotebox.h"
#include "screen/greeting.h"
#include "screen/layout.h"
#include "screen/pictureloaders.h"
#include "screen/quotepicture.h"
#include "screen/quoteview.h"
#include "screen/windowpixels.h"
#include "settings/settingsstore.h"

#include <QBackingStore>
#include <QPaintEvent>
#include <QPainter>
#include <QScreen>
#include <QWindow>

#include <algorithm>
#include <cmath>

namespace morrowleaf {
namespace {

constexpr qsizetype spokenLimit = 4000; // characters, of a text or an author

} // namespace

struct QuoteScreen::Private {
    Private(QuoteScreen& owner, SettingsStore& settings, const FontBook& book, BGStore& bgStore,
            std::unique_ptr<QuoteBox> quoteBox, Clock wallClock, FrameClock& clockOfFrames)
        : screen(owner)
        , store(settings)
        , fonts(book)
        , clock(std::move(wallClock))
        , box(std::move(quoteBox))
        , frameClock(clockOfFrames)
        , frames(frameClock)
        , photo(bgStore)
        , glass(bgStore.workers()) {}

    double sideInset() const { return inspector ? inspectorWidth : 0; }
    double sinceAppearance() const { return frameClock.now() - appearedAt; }
    QuoteViewState viewState(const Moment& moment, const ViewSettings& settings) const;
    bool exposed() const;

    void appear();
    void rebuildView();
    void startPhotoFade();
    void showPhoto(double progress);
    void advance(double seconds, bool freshBackdrop);
    void tick();
    void schedule();
    std::optional<double> nextFrame(double seconds) const;
    bool photoFades(double seconds) const;
    void startGlassFade();
    bool glassFades(double seconds) const;
    void placeInspector(double seconds);

    QuoteScreen& screen;
    SettingsStore& store;
    const FontBook& fonts;
    Clock clock;
    std::unique_ptr<QuoteBox> box;
    FrameClock& frameClock;
    FrameTimer frames;
    PhotoLoader photo;
    GlassLoader glass;
    QWidget* inspector = nullptr;

    std::optional<QuoteView> view;
    QuotePicture picture;
    DesktopView desktop;
    Wishes wishes;
    bool stale = true;       // settings, quotation, size or desktop have changed
    bool wholeAsked = false; // the next paint event shows a new instant everywhere

    double appearedAt = 0;   // in seconds of the frame clock
    double frameSeconds = 0; // of the frame shown, seconds since the appearance
    QString photoWanted;
    double photoWantedAt = 0; // seconds since the appearance
    double photoFadesFrom = -photoFade;
    double glassFadesFrom = -photoFade;
};

QuoteViewState QuoteScreen::Private::viewState(const Moment& moment,
                                               const ViewSettings& settings) const {
    QuoteViewState state;
    state.quote = box->quote();
    state.settings = settings;
    state.palette = viewPalette(settings, photo.readable(), moment);
    const QScreen* main = screen.screen();
    if (main && !main->size().isEmpty()) {
        state.mainScreen = main->size();
    }
    state.size = screen.size();
    state.devicePixelRatio = screen.devicePixelRatioF();
    state.sideInset = sideInset();
    state.moment = moment;
    state.locale = QLocale::system();
    return state;
}

bool QuoteScreen::Private::exposed() const {
    const QWindow* window = screen.window()->windowHandle();
    return window && window->isExposed();
}

void QuoteScreen::Private::appear() {
    appearedAt = frameClock.now();
    stale = true;
    placeInspector(0);
}

void QuoteScreen::Private::rebuildView() {
    const ViewSettings settings = readViewSettings(store, wishes);
    const double seconds = sinceAppearance();
    if (settings.bgImagePath != photoWanted) {
        photoWanted = settings.bgImagePath;
        photoWantedAt = seconds;
    }
    photo.setPhoto(settings.bgImagePath,
                   (QSizeF(screen.size()) * screen.devicePixelRatioF()).toSize());
    const QuoteViewState state = viewState(clock(), settings);
    if (view) {
        view->update(state, seconds);
    } else {
        view.emplace(state, fonts);
    }
    picture.backdrop = backdropFor(settings, state.palette, photo.readable());
    picture.backdrop.desktop = desktop;
    const bool seenThrough = desktop.kind == DesktopView::Kind::Captured &&
                             picture.backdrop.transparency > leastTransparency;
    glass.setPicture(seenThrough ? desktop.picture : QImage(), screen.devicePixelRatioF());
    picture.backdrop.desktop.glass = glass.glass();
    emit screen.systemBackdropWanted(systemBackdropFor(picture.backdrop));
    picture.change();
    stale = false;
}

// Photos that were decoded quickly appear at once; others fade in.
void QuoteScreen::Private::startPhotoFade() {
    const double seconds = sinceAppearance();
    const bool late = seconds - photoWantedAt > photoFadeThreshold;
    photoFadesFrom = late ? seconds : seconds - photoFade;
}

// Glass that is made within photoFadeThreshold seconds of the appearance is shown at
// once; otherwise it fades in.
void QuoteScreen::Private::startGlassFade() {
    const double seconds = sinceAppearance();
    glassFadesFrom = seconds > photoFadeThreshold ? seconds : seconds - photoFade;
}

bool QuoteScreen::Private::glassFades(double seconds) const {
    return picture.backdrop.desktop.glass && seconds < glassFadesFrom + photoFade;
}

bool QuoteScreen::Private::photoFades(double seconds) const {
    return picture.backdrop.hasPhoto && !photo.pixels().isNull() &&
           seconds < photoFadesFrom + photoFade;
}

// Cross-fades from one photo to another without darkening in between.
void QuoteScreen::Private::showPhoto(double progress) {
    if (progress >= 1) {
        photo.dropReplaced();
    }
    picture.backdrop.photo = photo.pixels();
    picture.backdrop.photoOpacity = progress;
    if (!photo.replaced().isNull()) {
        picture.backdrop.photo = photo.replaced();
        QPainter painter(&picture.backdrop.photo);
        painter.setOpacity(progress);
        painter.drawImage(QPoint(0, 0), photo.pixels());
        picture.backdrop.photoOpacity = 1;
    }
}

void QuoteScreen::Private::advance(double seconds, bool freshBackdrop) {
    const bool fades = photoFades(frameSeconds) || glassFades(frameSeconds);
    frameSeconds = seconds;
    if (fades) {
        picture.change();
    }
    showPhoto(std::clamp((seconds - photoFadesFrom) / photoFade, 0.0, 1.0));
    picture.backdrop.desktop.glassOpacity =
        std::clamp((seconds - glassFadesFrom) / photoFade, 0.0, 1.0);
    if (freshBackdrop) {
        picture.advance(seconds, clock().unixSeconds - unixToReference);
    }
}

void QuoteScreen::Private::placeInspector(double seconds) {
    if (!inspector) {
        return;
    }
    const double progress = wishes.reducedMotion ? 1 : inspectorEntrance.progress(seconds);
    const double out = (1 - progress) * inspectorWidth;
    inspector->setGeometry(screen.width() - inspectorWidth + static_cast<int>(std::lround(out)), 0,
                           inspectorWidth, screen.height());
}

void QuoteScreen::Private::tick() {
    if (!view || !screen.isVisible()) {
        return; // the next paint event wakes the clock again
    }
    if (!exposed()) { // such a window may be seen again without being painted
        frames.requestAt(frameClock.now() + ShownTiles::longestWait);
        return;
    }
    const double seconds = sinceAppearance();
    placeInspector(seconds);
    if (photoFades(frameSeconds) || glassFades(frameSeconds)) {
        wholeAsked = true;
        screen.update();
    } else {
        QRegion changed =
            onWholePixels(view->changedBetween(frameSeconds, seconds), screen.devicePixelRatioF());
        const bool backdropDue = picture.isDue(seconds);
        advance(seconds, backdropDue);
        if (backdropDue) {
            changed += picture.outdated(screen.devicePixelRatioF());
        }
        screen.update(changed);
    }
    schedule();
}

std::optional<double> QuoteScreen::Private::nextFrame(double seconds) const {
    std::optional<double> next;
    const auto consider = [&](double at) { next = next ? std::min(*next, at) : at; };
    if (const std::optional<double> motion = view->nextMotion(frameSeconds)) {
        consider(*motion);
    }
    const bool inspectorSlides =
        inspector && seconds < inspectorEntrance.end() + frameClock.frameInterval();
    if (photoFades(frameSeconds) || glassFades(frameSeconds) || inspectorSlides) {
        consider(seconds);
    }
    if (BackdropPainter::moves(picture.backdrop)) {
        consider(picture.nextDue());
    }
    return next;
}

void QuoteScreen::Private::schedule() {
    // Set again for every frame, because the window may move to another display.
    if (const QScreen* display = screen.screen()) {
        frameClock.setRate(display->refreshRate());
        picture.setFrameInterval(frameClock.frameInterval());
    }
    if (const std::optional<double> next = nextFrame(sinceAppearance())) {
        frames.requestAt(appearedAt + *next);
    } else {
        frames.cancel();
    }
}

QuoteScreen::QuoteScreen(SettingsStore& store, const FontBook& fonts, BGStore& photos,
                         std::unique_ptr<QuoteBox> box, Clock clock, FrameClock& frames,
                         QWidget* parent)
    : QWidget(parent)
    , d_(std::make_unique<Private>(*this, store, fonts, photos, std::move(box), std::move(clock),
                                   frames)) {
    installSpokenTexts();
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
    const auto refresh = [this] {
        d_->stale = true;
        update();
    };
    connect(&store, &SettingsStore::changed, this, [this, refresh] {
        if (!d_->view || readViewSettings(d_->store, d_->wishes) != d_->view->state().settings) {
            refresh();
        }
    });
    connect(d_->box.get(), &QuoteBox::quoteChanged, this, [this, refresh] {
        refresh();
        announceSpokenTexts(*this);
    });
    connect(&d_->photo, &PhotoLoader::changed, this, [this, refresh] {
        d_->startPhotoFade();
        refresh();
    });
    connect(&d_->glass, &GlassLoader::made, this, [this, refresh] {
        d_->startGlassFade();
        refresh();
    });
    connect(&d_->frames, &FrameTimer::tick, this, [this] { d_->tick(); });
}

QuoteScreen::~QuoteScreen() = default;

void QuoteScreen::setInspector(QWidget* inspector) {
    d_->inspector = inspector;
    inspector->setParent(this);
    inspector->show();
    d_->placeInspector(0);
}

void QuoteScreen::setDesktopView(const DesktopView& desktop) {
    d_->desktop = desktop;
    d_->stale = true;
    update();
}

void QuoteScreen::setWishes(const Wishes& wishes) {
    if (wishes != d_->wishes) {
        d_->wishes = wishes;
        d_->stale = true;
        d_->placeInspector(d_->view ? d_->sinceAppearance() : 0);
        update();
    }
}

const DesktopView& QuoteScreen::desktopView() const {
    return d_->desktop;
}

const QuoteView* QuoteScreen::view() const {
    return d_->view ? &*d_->view : nullptr;
}

bool QuoteScreen::isAnimating() const {
    return d_->frames.isActive();
}

SpokenTexts QuoteScreen::spokenTexts() const {
    const Moment moment = d_->clock();
    const Quote& quote = d_->box->quote();
    return {beginningOf(quote.text, spokenLimit), beginningOf(quote.author, spokenLimit),
            greeting(moment), today(moment, QLocale::system()), hintText(d_->sideInset())};
}

QList<QRect> QuoteScreen::spokenRects() const {
    using Element = QuoteView::Element;
    if (!d_->view) {
        return QList<QRect>(5);
    }
    QRectF lines;
    for (qsizetype i = 0; i < d_->view->lineCount(); ++i) {
        lines |= d_->view->lineRect(i);
    }
    const auto place = [&](Element element) { return d_->view->rect(element).toAlignedRect(); };
    return {place(Element::Greeting), place(Element::Today), lines.toAlignedRect(),
            place(Element::Author), place(Element::Hint)};
}

void QuoteScreen::paintEvent(QPaintEvent* event) {
    if (size().isEmpty()) {
        return;
    }
    if (!d_->view) {
        d_->appear();
    } else if (d_->view->state().devicePixelRatio != devicePixelRatioF()) {
        d_->stale = true;
    }
    // A repaint of a part must show the same instant as the rest of the screen.
    const bool freshInstant = d_->stale || d_->wholeAsked || !d_->frames.isActive();
    if (d_->stale) {
        d_->rebuildView();
    }
    if (freshInstant) {
        d_->advance(d_->sinceAppearance(), true);
    }
    d_->wholeAsked = false;

    QPoint offset;
    QPaintDevice* device = redirected(&offset);
    WindowPixels pixels(*this, device, -offset);
    const bool onWindow = backingStore() != nullptr && device == backingStore()->paintDevice();
    if (onWindow) {
        d_->picture.paint(pixels.image(), event->region(), *d_->view, d_->frameSeconds);
    } else {
        d_->picture.paintElsewhere(pixels.image(), event->region(), *d_->view, d_->frameSeconds);
    }
    pixels.finish(*this, event->region());
    // Paint events of a shown instant, however many, must not put off the next frame.
    if (freshInstant) {
        d_->schedule();
    }
}

void QuoteScreen::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    d_->stale = true;
    d_->placeInspector(d_->view ? d_->sinceAppearance() : 0);
}

} // namespace morrowleaf
