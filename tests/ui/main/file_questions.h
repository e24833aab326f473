#pragma once

#include "support/print.h"
#include "ui/support/designer.h"
#include "ui/support/prompt_script.h"

namespace vellumo {

/// What the designer asks before a changed project goes, and the captions of its file dialogs.
inline const QString saveQuestion =
    QStringLiteral("Do you want to save changes to your Vellsheet project?");
inline const QString saveAs = QStringLiteral("Save File As ");
inline const QString openFile = QStringLiteral("Open File ");

/// The form has the name "Survey" then.
inline void MakeChanged(const Designer &designer)
{
    designer.Type("txtAppName", QStringLiteral("Survey"));
    ASSERT_TRUE(designer.ProjectChanged());
}

} // namespace vellumo
