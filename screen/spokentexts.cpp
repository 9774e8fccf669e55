#include "screen/spokentexts.h"

#include "screen/quotescreen.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QPointer>

#include <array>

namespace morrowleaf {

namespace {

constexpr int spokenCount = 5;

// One painted text, as a label would be.
class SpokenText : public QAccessibleInterface {
public:
    SpokenText(QuoteScreen* screen, int index)
        : screen_(screen)
        , index_(index) {}

    bool isValid() const override { return !screen_.isNull(); }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override {
        return isValid() ? screen_->window()->windowHandle() : nullptr;
    }
    QAccessibleInterface* parent() const override {
        return QAccessible::queryAccessibleInterface(screen_.data());
    }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Name && isValid() ? screen_->spokenTexts().all().at(index_)
                                                      : QString();
    }
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override {
        if (!isValid()) {
            return {};
        }
        const QRect own = screen_->spokenRects().at(index_);
        return {screen_->mapToGlobal(own.topLeft()), own.size()};
    }
    QAccessible::Role role() const override { return QAccessible::StaticText; }
    QAccessible::State state() const override {
        QAccessible::State state;
        state.readOnly = true;
        state.invisible = !isValid() || !screen_->isVisible();
        return state;
    }

private:
    QPointer<QuoteScreen> screen_;
    int index_;
};

// The painted texts come before the children that are widgets.
class SpokenScreen : public QAccessibleWidget {
public:
    explicit SpokenScreen(QuoteScreen* screen)
        : QAccessibleWidget(screen, QAccessible::Pane) {
        for (int i = 0; i < spokenCount; ++i) {
            ids_[static_cast<size_t>(i)] =
                QAccessible::registerAccessibleInterface(new SpokenText(screen, i));
        }
    }
    ~SpokenScreen() override {
        for (const QAccessible::Id id : ids_) {
            QAccessible::deleteAccessibleInterface(id);
        }
    }
    SpokenScreen(const SpokenScreen&) = delete;
    SpokenScreen& operator=(const SpokenScreen&) = delete;

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
        const auto* screen = qobject_cast<QuoteScreen*>(object());
        if (!screen || kind != QAccessible::Name) {
            return QAccessibleWidget::text(kind);
        }
        const SpokenTexts texts = screen->spokenTexts();
        return texts.author.isEmpty() ? texts.quotation
                                      : texts.quotation + QStringLiteral(" \u2014 ") + texts.author;
    }

private:
    std::array<QAccessible::Id, spokenCount> ids_{};
};

QAccessibleInterface* makeSpokenScreen(const QString& className, QObject* object) {
    auto* screen = className == QLatin1String("morrowleaf::QuoteScreen")
                       ? qobject_cast<QuoteScreen*>(object)
                       : nullptr;
    return screen ? new SpokenScreen(screen) : nullptr;
}

} // namespace

void installQuoteScreenAccessibility() {
    QAccessible::installFactory(makeSpokenScreen); // ignores one that it knows
}

void announceSpokenTexts(QuoteScreen& screen) {
    QAccessibleEvent event(&screen, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&event);
}

} // namespace morrowleaf
