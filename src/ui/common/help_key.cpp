#include "ui/common/help_key.h"

#include <QShortcut>
#include <QWidget>

namespace vellumo {
namespace {

constexpr QLatin1StringView keyName{"helpKey"};

} // namespace

void ShowHelpByKey(QWidget &window, std::function<void()> show)
{
    auto *key = new QShortcut(Qt::Key_F1, &window);
    key->setObjectName(keyName);
    QObject::connect(key, &QShortcut::activated, &window, std::move(show));
}

void PressHelpKeyBelow(const QWidget *widget)
{
    for (; widget; widget = widget->parentWidget())
        if (auto *key = widget->findChild<QShortcut *>(keyName, Qt::FindDirectChildrenOnly))
            return emit key->activated();
}

} // namespace vellumo
