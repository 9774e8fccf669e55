// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "settingsui/settingsview.h"

#include "base/graphemes.h"
#include "platform/loginitem.h"
#include "quotes/collection.h"
#include "settings/prefs.h"
#include "settings/settingstable.h"
#include "settingsui/binding.h"
#include "settingsui/form.h"
#include "settingsui/formcontrols.h"
#include "settingsui/menuactions.h"
#include "settingsui/quietlabel.h"
#include "settingsui/readouts.h"
#include "sources/sourcepresets.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QPointer>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>

namespace morrowleaf {
namespace {

using namespace Qt::Literals::StringLiterals;

constexpr int formMargin = 18; // points
constexpr int sectionSpacing = 15;
constexpr int barPadding = 12;
constexpr int presetsWidth = 120;
constexpr int secondsWidth = 46;
constexpr int longestText = 600; // characters of a test's result
constexpr int longestAuthor = 100;

QFont scaled(const QFont& font, double factor) {
    QFont result = font;
    if (font.pointSizeF() > 0) {
        result.setPointSizeF(font.pointSizeF() * factor);
    } else {
        result.setPixelSize(qRound(font.pixelSize() * factor));
    }
    return result;
}

// The text up to that many characters, as far as it is drawn, with an ellipsis if there
// are more.
QString cutAfter(const QString& text, int characters) {
    constexpr qsizetype longestCharacter = 24; // UTF-16 units; more than any emoji has
    const QString drawn = drawnPart(text, characters * longestCharacter);
    const QList<qsizetype> ends = characterEnds(drawn);
    const auto shown = qMin<qsizetype>(ends.size(), characters);
    const QString cut = shown > 0 ? drawn.left(ends[shown - 1]) : QString();
    return hasMoreCharacters(text, static_cast<int>(shown)) ? cut + u'…' : cut;
}

// A button with more space beside its text than the style gives it.
QPushButton* roomyButton(const QString& text, QWidget* parent) {
    auto* button = new QPushButton(text, parent);
    button->setMinimumWidth(qMax(80, button->sizeHint().width() + 18));
    return button;
}

QPushButton* actionButton(QAction& action, QWidget* parent) {
    QPushButton* button = roomyButton(action.text(), parent);
    QObject::connect(button, &QPushButton::clicked, &action, &QAction::trigger);
    return button;
}

// What scrolls. A scroll area knows only the least height of its content whatever the width,
// and would press together texts of several lines.
class Form : public QWidget {
protected:
    bool event(QEvent* event) override {
        const bool isHandled = QWidget::event(event);
        if (event->type() == QEvent::Resize || event->type() == QEvent::LayoutRequest) {
            setMinimumHeight(layout()->totalHeightForWidth(width()));
        }
        return isHandled;
    }
};

class Line : public QWidget {
public:
    explicit Line(QWidget* parent)
        : QWidget(parent) {
        setFixedHeight(1);
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter(this).fillRect(rect(), QColor(128, 128, 128, 90));
    }
};

} // namespace

SettingsView::SettingsView(SettingsStore& store, QuoteLoader loader, LoginItem& loginItem,
                           MenuActions& actions, QWidget* parent)
    : QWidget(parent)
    , store_(store)
    , loader_(std::move(loader))
    , loginItem_(loginItem)
    , actions_(actions) {
    auto* form = new Form;
    auto* sections = new QVBoxLayout(form);
    sections->setContentsMargins(formMargin, 16, formMargin, 16);
    sections->setSpacing(sectionSpacing);
    auto* appearance = new FormCard(tr("Appearance"), form);
    auto* behaviour = new FormCard(tr("Behaviour"), form);
    auto* quotes = new FormCard(tr("Quotes"), form);
    addAppearance(*appearance);
    addBehaviour(*behaviour);
    addQuotes(*quotes);
    for (FormCard* card : {appearance, behaviour, quotes}) {
        sections->addWidget(card);
    }
    sections->addStretch(1);

    auto* scroll = new QScrollArea(this);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setFocusPolicy(Qt::NoFocus);
    scroll->setWidget(form);
    form->setAutoFillBackground(false);
    scroll->viewport()->setAutoFillBackground(false);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(scroll, 1);
    column->addWidget(makeNotice());
    column->addWidget(new Line(this));
    auto* bar = makeBottomBar();
    column->addWidget(bar);

    QSize size = settingsViewSize;
    const int needed = qMax(form->minimumSizeHint().width(), bar->minimumSizeHint().width()) +
                       scroll->verticalScrollBar()->sizeHint().width();
    if (needed > size.width()) {
        size *= double(needed) / size.width();
    }
    setFixedWidth(size.width());
    setMaximumHeight(size.height());
    resize(size);
}

void SettingsView::addAppearance(FormCard& card) {
    auto* row = new QWidget(&card);
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* text =
        makeQuietLabel(tr("Palette, typeface, size, vignette and grain"), Emphasis::Secondary, row);
    text->setFont(scaled(font(), 0.95));
    auto* edit = actionButton(actions_.editAppearance, row);
    layout->addWidget(text, 1);
    layout->addWidget(edit);
    card.addRow(row);
}

void SettingsView::addBehaviour(FormCard& card) {
    SettingsStore& store = store_;
    auto* wake = makeSwitch(tr("Show on wake and unlock"), switchStyle_, &card);
    bindSwitch(*wake, store, K::showOnWake);
    card.addRow(wake);

    auto* frequency = new FormPicker(&card);
    frequency->addItem(tr("Every %n hours", "", 6), u"6h"_s);
    frequency->addItem(tr("Every %n hours", "", 12), u"12h"_s);
    frequency->addItem(tr("Every %n hours", "", 24), u"24h"_s);
    //: A new quote at every showing
    frequency->addItem(tr("Every time it shows"), u"every"_s);
    bindChoice(*frequency, store, K::frequency);
    //: How often the quote changes
    card.addRow(tr("New quote"), frequency);

    card.addRow(makeCloseAfter());
    card.addRow(makeLoginSwitch());
}

QWidget* SettingsView::makeLoginSwitch() {
    auto* control = makeSwitch(tr("Open at login"), switchStyle_, this);
    const auto isEnabled = [this] { return loginItem_.status() == LoginItem::Status::Enabled; };
    control->setChecked(isEnabled());
    connect(control, &QAbstractButton::toggled, this, [this, control, isEnabled](bool on) {
        if (on ? loginItem_.registerItem() : loginItem_.unregisterItem()) {
            const QSignalBlocker blocker(control);
            control->setChecked(isEnabled());
            emit loginItemRefused();
        }
    });
    return control;
}

QWidget* SettingsView::makeCloseAfter() {
    auto* row = new QWidget(this);
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    //: Followed by a number of seconds
    auto* label = new QLabel(tr("Close after"), row);
    auto* slider = new FormSlider(row);
    slider->setRange(int(K::dismiss.lowest), int(K::dismiss.highest)); // seconds
    slider->setSingleStep(1);
    slider->setPageStep(5);
    slider->setFixedWidth(200);
    slider->setAccessibleName(label->text());
    label->setBuddy(slider);
    auto* readout = makeNumberLabel(Emphasis::Secondary, row);
    readout->setText(secondsReadout(K::dismiss.highest));
    readout->setFixedWidth(qMax(secondsWidth, readout->sizeHint().width()));
    layout->addWidget(label);
    layout->addStretch(1);
    layout->addWidget(slider);
    layout->addWidget(readout);

    SettingsStore& store = store_;
    auto* binding = new Binding(store, K::dismiss, slider, [slider, readout, &store] {
        const double seconds = store.get(K::dismiss);
        slider->setValue(qRound(std::clamp(seconds, K::dismiss.lowest, K::dismiss.highest)));
        readout->setText(secondsReadout(seconds));
    });
    const auto set = [binding, slider, readout] {
        if (binding->set(double(slider->value()))) {
            readout->setText(secondsReadout(slider->value()));
        }
    };
    connect(slider, &FormSlider::valueChanged, binding, set);
    connect(slider, &FormSlider::confirmed, binding, set);
    return row;
}

QPushButton* SettingsView::makePresets() {
    auto* button = new QPushButton(tr("Presets"), this);
    auto* menu = new QMenu(button);
    for (const SourcePreset& preset : sourcePresets) {
        menu->addAction(sourcePresetLabel(preset), this, [this, address = preset.address] {
            store_.set(K::source, QString(address));
        });
    }
    menu->addAction(tr("Built-in list"), this, [this] { store_.set(K::source, QString()); });
    button->setMenu(menu);
    button->setFixedWidth(qMax(presetsWidth, button->sizeHint().width()));
    return button;
}

void SettingsView::addQuotes(FormCard& card) {
    auto* source = new FormField(&card);
    source->setPlaceholderText(
        tr("Leave empty for the built-in %n quotes", "", static_cast<int>(quoteCount)));
    source->setTextMargins(4, 0, 4, 0);
    bindText(*source, store_, K::source);
    card.addRow(tr("Source URL"), source);

    auto* row = new QWidget(&card);
    row->setAccessibleName(tr("Testing…")); // it has the keyboard focus during a test
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(makePresets());
    testButton_ = roomyButton(tr("Testing…"), row);
    testButton_->setText(tr("Test"));
    layout->addWidget(testButton_);
    connect(testButton_, &QPushButton::clicked, this, &SettingsView::test);
    layout->addStretch(1);
    card.addRow(row);

    testResult_ = makeQuietLabel({}, Emphasis::Secondary, &card);
    testResult_->setFont(scaled(font(), 0.95));
    testResult_->setContentsMargins(0, 2, 0, 8);
    card.addContinuation(testResult_);
    testResult_->setMinimumHeight(0);
    testResult_->setObjectName(u"TestResult"_s);
    testResult_->hide();

    auto* help =
        makeQuietLabel(tr("Any JSON with a quote and author field works, plus a local file path. "
                          "The last fetched quote is cached, so it still shows offline."),
                       Emphasis::Tertiary, &card);
    help->setFont(scaled(font(), 0.86));
    card.addRow(help);
}

// One line that is visible only while an unreadable settings file is kept.
QWidget* SettingsView::makeNotice() {
    auto* notice = makeQuietLabel({}, Emphasis::Secondary, this);
    notice->setFont(scaled(font(), 0.95));
    notice->setContentsMargins(formMargin, 8, formMargin, 8);
    const auto update = [this, notice] {
        const QString name = store_.keptFileName();
        notice->setText(name.isEmpty() ? QString()
                                       //: %1 is the name of a file
                                       : tr("Unreadable settings are kept in %1").arg(name));
        notice->setVisible(!name.isEmpty());
    };
    connect(&store_, &SettingsStore::keptFileNameChanged, notice, update);
    update();
    return notice;
}

QWidget* SettingsView::makeBottomBar() {
    auto* bar = new QWidget(this);
    auto* layout = new QHBoxLayout(bar);
    layout->setContentsMargins(barPadding, barPadding, barPadding, barPadding);
    layout->addWidget(actionButton(actions_.showQuote, bar));
    layout->addStretch(1);
    layout->addWidget(actionButton(actions_.quit, bar));
    return bar;
}

void SettingsView::test() {
    if (!testButton_->isEnabled()) {
        return;
    }
    if (testButton_->hasFocus()) {
        // Not to the next button, which a second press would trigger.
        testButton_->parentWidget()->setFocus();
    }
    testButton_->setEnabled(false);
    testButton_->setText(tr("Testing…"));
    showTestResult({});
    const QPointer<SettingsView> self(this);
    loader_(Prefs::source(store_), [self](const std::optional<Quote>& quote) {
        if (!self) {
            return;
        }
        self->testButton_->setEnabled(true);
        self->testButton_->setText(tr("Test"));
        if (self->testButton_->parentWidget()->hasFocus()) {
            self->testButton_->setFocus();
        }
        self->showTestResult(quote ? u'“' + cutAfter(quote->text, longestText) + u"” — "_s +
                                         cutAfter(quote->author, longestAuthor)
                                   : tr("No quote found at that source."));
    });
}

void SettingsView::keyPressEvent(QKeyEvent* event) {
    passReturnOn(*event);
}

void SettingsView::keyReleaseEvent(QKeyEvent* event) {
    passReturnOn(*event);
}

// Some desktop themes let Return press the focused control, as Space does; in others the
// control ignores the key, which comes here.
void SettingsView::passReturnOn(QKeyEvent& event) {
    event.ignore();
    QWidget* focused = focusWidget();
    const bool isReturn = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
    if (isReturn && (qobject_cast<QAbstractButton*>(focused) != nullptr ||
                     qobject_cast<QComboBox*>(focused) != nullptr)) {
        QKeyEvent space(event.type(), Qt::Key_Space, Qt::NoModifier, {}, event.isAutoRepeat());
        QCoreApplication::sendEvent(focused, &space);
        event.accept();
    }
}

void SettingsView::showTestResult(const QString& testResult) {
    testResult_->setText(testResult);
    testResult_->setVisible(!testResult.isEmpty());
    testButton_->setAccessibleDescription(testResult);
}

} // namespace morrowleaf
