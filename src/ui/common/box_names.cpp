#include "ui/common/box_names.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QAccessibleWidget>
#include <QComboBox>
#include <QLineEdit>

namespace vellumo {
namespace {

/// Named as every other box is; otherwise what the toolkit makes of a combo box.
class AccessibleComboBox : public QAccessibleWidget
{
public:
    explicit AccessibleComboBox(QComboBox *box) : QAccessibleWidget(box, QAccessible::ComboBox) {}

    int childCount() const override { return Box()->isEditable() ? 2 : 1; }

    QAccessibleInterface *child(int index) const override
    {
        if (index == 0)
            return QAccessible::queryAccessibleInterface(Box()->view());
        return index == 1 ? QAccessible::queryAccessibleInterface(Box()->lineEdit()) : nullptr;
    }

    int indexOfChild(const QAccessibleInterface *child) const override
    {
        if (child->object() == Box()->view())
            return 0;
        return Box()->isEditable() && child->object() == Box()->lineEdit() ? 1 : -1;
    }

    QString text(QAccessible::Text which) const override
    {
        return which == QAccessible::Value ? Box()->currentText() : QAccessibleWidget::text(which);
    }

    QStringList actionNames() const override { return {showMenuAction(), pressAction()}; }

    void doAction(const QString &name) override
    {
        if (name != showMenuAction() && name != pressAction())
            return;
        Box()->view()->isVisible() ? Box()->hidePopup() : Box()->showPopup();
    }

private:
    QComboBox *Box() const { return static_cast<QComboBox *>(widget()); }
};

QAccessibleInterface *Make(const QString &className, QObject *object)
{
    const bool isBox = className == QLatin1StringView(QComboBox::staticMetaObject.className());
    return isBox ? new AccessibleComboBox(static_cast<QComboBox *>(object)) : nullptr;
}

} // namespace

void NameComboBoxes()
{
    QAccessible::installFactory(Make); // which takes each but once
}

} // namespace vellumo
