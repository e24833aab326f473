#pragma once

#include <QByteArrayView>
#include <QString>

namespace vellumo {

/// A text for a page: every character that no page can hold, or nobody can see, as U+FFFD.
QString ShownText(QStringView text);

/// A text of a database, which is in windows-1252, for a page.
QString ShownText(QByteArrayView text);

} // namespace vellumo
