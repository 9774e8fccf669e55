// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "screen/spokentexts.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QPointer>
#include <QWidget>
#include <QWindow>

#include <array>

namespace morrowleaf {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int spokenCount = 5;

// One painted text, presented like a label.
class SpokenText : public QAccessibleInterface {
public:
    SpokenText(QWidget* widget, int index)
        : widget_(widget)
        , index_(index) {}

    bool isValid() const override { return speaker() != nullptr; }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override {
        return isValid() ? widget_->window()->windowHandle() : nullptr;
    }
    QAccessibleInterface* parent() const override {
        return QAccessible::queryAccessibleInterface(widget_.data());
    }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Name && isValid() ? speaker()->spokenTexts().all().at(index_)
                                                      : QString();
    }
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override {
        if (!isValid()) {
            return {};
        }
        const QRect own = speaker()->spokenRects().at(index_);
        return {widget_->mapToGlobal(own.topLeft()), own.size()};
    }
    QAccessible::Role role() const override { return QAccessible::StaticText; }
    QAccessible::State state() const override {
        QAccessible::State state;
        state.readOnly = true;
        state.invisible = !isValid() || !widget_->isVisible();
        return state;
    }

private:
    const SpeakingWidget* speaker() const {
        return dynamic_cast<const SpeakingWidget*>(widget_.data());
    }

    QPointer<QWidget> widget_;
    int index_;
};

// The pane of a SpeakingWidget; the painted texts come before the child widgets.
class SpokenPane : public QAccessibleWidget {
public:
    explicit SpokenPane(QWidget* widget)
        : QAccessibleWidget(widget, QAccessible::Pane) {
        for (int i = 0; i < spokenCount; ++i) {
            ids_[static_cast<size_t>(i)] =
                QAccessible::registerAccessibleInterface(new SpokenText(widget, i));
        }
    }
    ~SpokenPane() override {
        for (const QAccessible::Id id : ids_) {
            QAccessible::deleteAccessibleInterface(id);
        }
    }
    SpokenPane(const SpokenPane&) = delete;
    SpokenPane& operator=(const SpokenPane&) = delete;

    int childCount() const override { return spokenCount + QAccessibleWidget::childCount(); }
    QAccessibleInterface* child(int index) const override {
        return index >= 0 && index < spokenCount
                   ? QAccessible::accessibleInterface(ids_[static_cast<size_t>(index)])
                   : QAccessibleWidget::child(index - spokenCount);
    }
    int indexOfChild(const QAccessibleInterface* wanted) const override {
        for (int i = 0; i < spokenCount; ++i) {
            if (child(i) == wanted) {
                return i;
            }
        }
        const int index = QAccessibleWidget::indexOfChild(wanted);
        return index < 0 ? index : index + spokenCount;
    }
    QAccessibleInterface* childAt(int x, int y) const override {
        if (QAccessibleInterface* widget = QAccessibleWidget::childAt(x, y)) {
            return widget;
        }
        for (int i = 0; i < spokenCount; ++i) {
            if (child(i)->rect().contains(x, y)) {
                return child(i);
            }
        }
        return nullptr;
    }
    QString text(QAccessible::Text kind) const override {
        const auto* speaker = dynamic_cast<const SpeakingWidget*>(object());
        if (speaker == nullptr || kind != QAccessible::Name) {
            return QAccessibleWidget::text(kind);
        }
        const SpokenTexts texts = speaker->spokenTexts();
        return texts.author.isEmpty() ? texts.quotation
                                      : texts.quotation + u" \u2014 "_s + texts.author;
    }

private:
    std::array<QAccessible::Id, spokenCount> ids_{};
};

QAccessibleInterface* makeSpokenPane(const QString& /*className*/, QObject* object) {
    const bool speaks = dynamic_cast<SpeakingWidget*>(object) != nullptr;
    auto* widget = qobject_cast<QWidget*>(object);
    return speaks && widget != nullptr ? new SpokenPane(widget) : nullptr;
}

} // namespace

void installSpokenTexts() {
    QAccessible::installFactory(makeSpokenPane); // Qt ignores a factory that is already installed
}

void announceSpokenTexts(QWidget& widget) {
    QAccessibleEvent event(&widget, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&event);
}

} // namespace morrowleaf
