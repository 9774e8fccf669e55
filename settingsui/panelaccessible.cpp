// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "settingsui/panelaccessible.h"

#include "settingsui/knob.h"
#include "settingsui/menupicker.h"
#include "settingsui/swatch.h"

#include <QAccessible>
#include <QAccessibleWidget>

namespace morrowleaf {
namespace {

// Set on a widget whose children are controls that belong together.
constexpr const char* groupProperty = "morrowleafGroup";

// Makes a custom button pressable and gives it a role.
class ButtonAccessible : public QAccessibleWidget {
public:
    ButtonAccessible(QAbstractButton* button, QAccessible::Role role)
        : QAccessibleWidget(button, role, button->accessibleName()) {}

    QStringList actionNames() const override {
        return QStringList{pressAction()} + QAccessibleWidget::actionNames();
    }
    void doAction(const QString& action) override {
        if (action == pressAction()) {
            static_cast<QAbstractButton*>(widget())->click();
        } else {
            QAccessibleWidget::doAction(action);
        }
    }
};

class SwatchAccessible : public ButtonAccessible {
public:
    explicit SwatchAccessible(Swatch* swatch)
        : ButtonAccessible(swatch, QAccessible::RadioButton) {}

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.checkable = true;
        state.checked = static_cast<Swatch*>(widget())->isMarked();
        return state;
    }
};

class PickerAccessible : public ButtonAccessible {
public:
    explicit PickerAccessible(MenuPicker* picker)
        : ButtonAccessible(picker, QAccessible::ComboBox) {}

    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Value ? picker()->currentText() : QAccessibleWidget::text(kind);
    }
    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.hasPopup = true;
        state.expandable = true;
        state.expanded = picker()->isOpen();
        state.collapsed = !picker()->isOpen();
        return state;
    }

private:
    MenuPicker* picker() const { return static_cast<MenuPicker*>(widget()); }
};

class SliderAccessible : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    explicit SliderAccessible(PanelSlider* slider)
        : QAccessibleWidget(slider, QAccessible::Slider, slider->accessibleName()) {}

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ValueInterface ? static_cast<QAccessibleValueInterface*>(this)
                                                   : QAccessibleWidget::interface_cast(type);
    }
    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Value ? slider()->valueText() : QAccessibleWidget::text(kind);
    }
    QVariant currentValue() const override { return slider()->real(); }
    void setCurrentValue(const QVariant& value) override { slider()->moveTo(value.toDouble()); }
    QVariant maximumValue() const override { return slider()->highest(); }
    QVariant minimumValue() const override { return slider()->lowest(); }
    QVariant minimumStepSize() const override {
        return (slider()->highest() - slider()->lowest()) / 100;
    }

private:
    PanelSlider* slider() const { return static_cast<PanelSlider*>(widget()); }
};

QAccessibleInterface* make(const QString& /*className*/, QObject* object) {
    if (object->property(groupProperty).toBool()) {
        return new QAccessibleWidget(static_cast<QWidget*>(object), QAccessible::Grouping);
    }
    if (auto* tile = qobject_cast<AddTile*>(object)) {
        return new ButtonAccessible(tile, QAccessible::Button);
    }
    if (auto* swatch = qobject_cast<Swatch*>(object)) {
        return new SwatchAccessible(swatch);
    }
    if (auto* picker = qobject_cast<MenuPicker*>(object)) {
        return new PickerAccessible(picker);
    }
    if (auto* button = qobject_cast<RemoveButton*>(object)) {
        return new ButtonAccessible(button, QAccessible::Button);
    }
    if (auto* slider = qobject_cast<PanelSlider*>(object)) {
        return new SliderAccessible(slider);
    }
    return nullptr;
}

} // namespace

void makeAccessibleGroup(QWidget& group, const QString& name) {
    QAccessible::installFactory(make); // a second installation has no effect
    group.setProperty(groupProperty, true);
    group.setAccessibleName(name);
}

} // namespace morrowleaf
