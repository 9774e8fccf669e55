// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "settingsui/inspector.h"

#include "look/animationkinds.h"
#include "settings/prefs.h"
#include "settings/settingstable.h"
#include "settingsui/binding.h"
#include "settingsui/knob.h"
#include "settingsui/menupicker.h"
#include "settingsui/palettegroup.h"
#include "settingsui/panelaccessible.h"
#include "settingsui/panelstyle.h"
#include "settingsui/photochooser.h"
#include "settingsui/photogroup.h"
#include "settingsui/readouts.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>
#include <QVBoxLayout>

#include <array>

namespace morrowleaf {
namespace {

using namespace Qt::Literals::StringLiterals;

constexpr double leastGlass = 0.01; // transparency below which the glass is not visible

template <typename Kinds>
std::vector<std::pair<QString, QString>> entriesOf(const Kinds& kinds) {
    std::vector<std::pair<QString, QString>> entries;
    entries.reserve(kinds.size());
    for (const auto kind : kinds) {
        entries.emplace_back(rawValue(kind), label(kind));
    }
    return entries;
}

// Both keys with every modifier, since the themes ignore those.
QList<QKeySequence> returnKeys() {
    constexpr std::array modifiers{Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier,
                                   Qt::MetaModifier};
    QList<QKeySequence> keys{Qt::Key_Return, Qt::Key_Enter};
    for (const Qt::KeyboardModifier modifier : modifiers) {
        for (const QKeySequence& key : QList(keys)) {
            keys.append(QKeyCombination(key[0].keyboardModifiers() | modifier, key[0].key()));
        }
    }
    return keys;
}

} // namespace

double headerTopPadding(const std::optional<ScreenFrames>& screen) {
    return screen ? qMax(screen->visible.top() - screen->whole.top() + 8, 24) : 38;
}

Inspector::Inspector(SettingsStore& store, BGStore& photos, FileChooser& files,
                     InspectorSetup setup, QWidget* parent)
    : QWidget(parent)
    , store_(store)
    , photos_(photos)
    , setup_(std::move(setup))
    , photoChooser_(new PhotoChooser(files, this)) {
    connect(photoChooser_, &PhotoChooser::opening, this, &Inspector::dialogOpening);
    connect(photoChooser_, &PhotoChooser::closed, this, &Inspector::dialogClosed);
    setFixedWidth(width);
    setPalette(PanelStyle::palette());
    setFocusPolicy(Qt::ClickFocus);
    makeAccessibleGroup(*this, tr("Appearance"));
    // A shortcut, because some desktop themes let Return press the focused control.
    auto* shortcut = new QShortcut(this);
    shortcut->setKeys(returnKeys());
    shortcut->setContext(Qt::WindowShortcut); // a click on the picture moves the focus there
    shortcut->setAutoRepeat(false);           // the key that opened the editor may still be held
    connect(shortcut, &QShortcut::activated, this, &Inspector::done);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(1, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(makeHeader());
    column->addWidget(panelDivider(0.35, this));
    scroll_ = new QScrollArea(this);
    scroll_->setFrameShape(QFrame::NoFrame);
    scroll_->setWidgetResizable(true);
    scroll_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // Always shown, so that the width of the content does not change.
    scroll_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    scroll_->verticalScrollBar()->setStyle(&controlStyle_);
    scroll_->setFocusPolicy(Qt::NoFocus);
    scroll_->setWidget(makeGroups());
    // QScrollArea::setWidget() makes the widget fill its background.
    scroll_->viewport()->setAutoFillBackground(false);
    scroll_->widget()->setAutoFillBackground(false);
    column->addWidget(scroll_, 1);
    column->addWidget(panelDivider(0.35, this));
    column->addWidget(makeFooter());
    if (setup_.highContrast) {
        for (auto* label : findChildren<QLabel*>()) {
            label->setPalette(PanelStyle::palette());
        }
    }
}

QWidget* Inspector::makeHeader() {
    auto* header = new QWidget(this);
    auto* row = new QHBoxLayout(header);
    row->setContentsMargins(PanelStyle::margin - 1, qRound(headerTopPadding(setup_.screen)),
                            PanelStyle::margin, 14);
    row->addWidget(panelLabel(locale().toUpper(tr("Appearance")),
                              panelFont(setup_.face, 10, QFont::Medium, 2.2), 0.55, header));
    row->addStretch(1);
    return header;
}

void Inspector::addGroup(QVBoxLayout& column, const QString& title,
                         std::initializer_list<QWidget*> rows) {
    auto* group = new QVBoxLayout;
    group->setSpacing(PanelStyle::titleSpacing);
    QLabel* label = panelLabel(locale().toUpper(title),
                               panelFont(setup_.face, 9, QFont::Medium, 1.8), 0.4, this);
    label->setAccessibleName(title);
    label->setContentsMargins(PanelStyle::focusRoom, 0, PanelStyle::focusRoom, 0);
    group->addWidget(label);
    for (QWidget* row : rows) {
        // Aligns the visible edges; a focus ring extends beyond them.
        auto* room = new QHBoxLayout;
        const int before = qobject_cast<Knob*>(row) != nullptr ? 0 : PanelStyle::focusRoom;
        const int behind = qobject_cast<QCheckBox*>(row) != nullptr
                               ? PanelStyle::focusRoom - ControlStyle::switchOverhang
                               : PanelStyle::focusRoom;
        room->setContentsMargins(mirroredIn(*this, {before, 0, behind, 0}));
        room->addWidget(row);
        group->addLayout(room);
    }
    column.addLayout(group);
}

QWidget* Inspector::makePicker(const QString& name, const TextSetting& setting,
                               const std::vector<std::pair<QString, QString>>& entries) {
    std::vector<MenuPicker::Entry> list;
    list.reserve(entries.size());
    for (const auto& [value, text] : entries) {
        list.push_back({value, text});
    }
    auto* picker = new MenuPicker(name, std::move(list), setup_.face, this);
    SettingsStore& store = store_;
    auto* binding = new Binding(store, setting, picker, [picker, &store, setting] {
        picker->showValue(store.get(setting));
    });
    connect(picker, &MenuPicker::chosen, binding,
            [binding](const QString& value) { binding->set(value); });
    return picker;
}

QWidget* Inspector::makeGroups() {
    SettingsStore& store = store_;
    const QFont& face = setup_.face;
    auto* groups = new QWidget(this);
    auto* column = new QVBoxLayout(groups);
    // The line of the panel is always at the left, the scroll bar at the trailing edge.
    const int edge = PanelStyle::margin - PanelStyle::focusRoom;
    const QMargins bar = mirroredIn(*this, {0, 0, ControlStyle::scrollBarThickness, 0});
    column->setContentsMargins(QMargins(edge - 1, 18, edge, 22) - bar);
    column->setSpacing(PanelStyle::groupSpacing);

    const auto knob = [&](const QString& name, const RealSetting& setting,
                          const Knob::Readout& readout) {
        return new Knob(name, store, setting, readout, face, controlStyle_, this);
    };
    const auto smallSwitch = [&](const QString& name, const FlagSetting& setting) {
        auto* control = makeSwitch(name, controlStyle_, this);
        control->setFont(panelFont(face, 12));
        bindSwitch(*control, store, setting);
        return control;
    };

    addGroup(*column, tr("Palette"), {new PaletteGroup(store, face, this)});
    addGroup(*column, tr("Your photo"),
             {new PhotoGroup(store, photos_, *photoChooser_, face, this)});
    addGroup(*column, tr("Typeface"),
             {makePicker(tr("Typeface"), K::font,
                         {{u"fraunces"_s, u"Fraunces"_s},
                          {u"serif"_s, tr("Serif (New York)")},
                          {u"sans"_s, tr("Sans (SF Pro)")},
                          {u"rounded"_s, tr("Rounded")},
                          {u"mono"_s, tr("Mono")}})});
    addGroup(*column, tr("Size"), {knob(tr("Size"), K::textScale, percentReadout)});
    addGroup(*column, tr("Vignette"), {knob(tr("Vignette"), K::vignette, plainReadout)});
    Knob* transparency = knob(tr("Transparency"), K::transparency, percentReadout);
    if (setup_.glassCanBeDrawn) {
        QCheckBox* glass = smallSwitch(tr("Liquid Glass"), K::liquidGlass);
        new Binding(store, K::transparency, glass, [glass, &store] {
            glass->setEnabled(store.get(K::transparency) >= leastGlass);
        });
        addGroup(*column, tr("Transparency"), {transparency, glass});
    } else {
        addGroup(*column, tr("Transparency"), {transparency});
    }
    addGroup(*column, tr("Text reveal"),
             {makePicker(tr("Text reveal"), K::textAnim, entriesOf(allTextAnims))});
    addGroup(*column, tr("Screen motion"),
             {makePicker(tr("Screen motion"), K::screenAnim, entriesOf(allScreenAnims))});
    addGroup(*column, tr("Grain"), {smallSwitch(tr("Film grain"), K::grain)});
    column->addStretch(1);
    return groups;
}

QWidget* Inspector::makeFooter() {
    auto* footer = new QWidget(this);
    auto* row = new QHBoxLayout(footer);
    const QMargins padding = mirroredIn(*this, {ControlStyle::buttonPadding, 0, 0, 0});
    row->setContentsMargins(QMargins(PanelStyle::margin - 1, 10, PanelStyle::margin, 12) - padding);
    const QFont font = panelFont(setup_.face, 12);
    auto* resetButton = makeButton(tr("Reset"), ButtonKind::Plain, controlStyle_, footer);
    auto* doneButton = makeButton(tr("Done"), ButtonKind::Filled, controlStyle_, footer);
    resetButton->setFont(font);
    doneButton->setFont(panelFont(setup_.face, 12, QFont::DemiBold));
    connect(resetButton, &QAbstractButton::clicked, this, [this] { resetAppearance(store_); });
    connect(doneButton, &QAbstractButton::clicked, this, &Inspector::done);
    row->addWidget(resetButton);
    row->addStretch(1);
    row->addWidget(doneButton);
    return footer;
}

void Inspector::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const QColor veil = PanelStyle::veil();
    painter.fillRect(rect(), setup_.highContrast ? withOpacity(veil, 1) : veil);
    painter.fillRect(0, 0, 1, height(), PanelStyle::ink(0.12));
}

// Keeps a press beside the controls from reaching the quote screen.
void Inspector::mousePressEvent(QMouseEvent* event) {
    event->accept();
}

void Inspector::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (!isAncestorOf(window()->focusWidget())) {
        setFocus(Qt::OtherFocusReason);
    }
}

// Keeps Tab within the panel and scrolls to the control that it reaches.
bool Inspector::focusNextPrevChild(bool next) {
    QWidget* at = window()->focusWidget();
    QWidget* start = at;
    do {
        at = next ? at->nextInFocusChain() : at->previousInFocusChain();
    } while (at != start && !(isAncestorOf(at) && at->isVisible() && at->isEnabled() &&
                              (at->focusPolicy() & Qt::TabFocus) != 0));
    if (at == start) {
        return false;
    }
    at->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    if (scroll_->isAncestorOf(at)) {
        scroll_->ensureWidgetVisible(at, 0, 24);
    }
    return true;
}

} // namespace morrowleaf
