#include "controls/PaintedValue.h"

#include <QAccessible>
#include <QAccessibleWidget>

namespace {
class PaintedInterface final : public QAccessibleWidget {
public:
    PaintedInterface(QWidget* widget, const PaintedValue& painted)
        : QAccessibleWidget(widget, QAccessible::Chart), painted_(painted) {}

    QString text(QAccessible::Text kind) const override {
        const bool shown = kind == QAccessible::Value || kind == QAccessible::Description;
        return shown ? painted_.InWords() : QAccessibleWidget::text(kind);
    }

private:
    const PaintedValue& painted_;
};

QAccessibleInterface* InterfaceOf(const QString&, QObject* object) {
    auto* widget = qobject_cast<QWidget*>(object);
    const auto* painted = dynamic_cast<const PaintedValue*>(object);
    return widget && painted ? new PaintedInterface(widget, *painted) : nullptr;
}
} // namespace

PaintedValue::PaintedValue() {
    static const bool known = (QAccessible::installFactory(&InterfaceOf), true);
    Q_UNUSED(known);
}

PaintedValue::~PaintedValue() = default;

void PaintedValue::SayChanged(QWidget& widget) {
    QAccessibleEvent event(&widget, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&event);
}
