// SPDX-License-Identifier: MIT
#include "corvex/widgets/AccessibleValue.h"

#include <QAccessibleWidget>
#include <QWidget>

namespace Halvane::Corvex::Designer {

namespace {

constexpr auto valueKey = "accessibleValue";
constexpr auto roleKey = "accessibleRole";

class WidgetWithValue : public QAccessibleWidget
{
public:
    explicit WidgetWithValue(QWidget *widget)
        : QAccessibleWidget(widget, QAccessible::Role(widget->property(roleKey).toInt()))
    { }

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Value ? widget()->property(valueKey).toString()
                                          : QAccessibleWidget::text(kind);
    }
};

QAccessibleInterface *create(const QString &, QObject *object)
{
    auto *widget = object->isWidgetType() ? static_cast<QWidget *>(object) : nullptr;
    return widget && widget->property(valueKey).isValid() ? new WidgetWithValue(widget) : nullptr;
}

} // namespace

void AccessibleValue::set(QWidget *widget, const QString &words, QAccessible::Role role)
{
    [[maybe_unused]] static const bool isInstalled = [] {
        QAccessible::installFactory(&create);
        return true;
    }();
    if (widget->property(valueKey) != words) {
        widget->setProperty(roleKey, int(role));
        widget->setProperty(valueKey, words);
        QAccessibleValueChangeEvent change(widget, words);
        QAccessible::updateAccessibility(&change);
    }
}

} // namespace Halvane::Corvex::Designer
