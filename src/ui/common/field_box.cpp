#include "ui/common/field_box.h"

#include "ui/common/key_filter.h"
#include "ui/common/one_line_box.h"
#include "ui/common/plain_text.h"
#include "ui/common/project_document.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScopedValueRollback>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

/// The keys that the box of a field refuses.
struct RefusedKeys {
    FormField field;
    RefusedCharacters refused;
};

constexpr std::array refusedKeys = {
    RefusedKeys{FormField::Name, fileNameCharacters},
    RefusedKeys{FormField::Version, doubleQuotes},
    RefusedKeys{FormField::Description, lineBreaks},
    RefusedKeys{FormField::DataFolder, doubleQuotes},
};
static_assert(HasRowPerField(refusedKeys));

} // namespace

FieldBox::FieldBox(ProjectDocument &document, FormField field, QWidget *box)
    : m_document(document), m_field(field), m_box(box)
{
    RefuseKeys(box, refusedKeys[static_cast<size_t>(field)].refused);
    box->installEventFilter(this);
}

FieldBox::FieldBox(ProjectDocument &document, FormField field, QLineEdit *box)
    : FieldBox(document, field, static_cast<QWidget *>(box))
{
    KeepToOneLine(box);
    m_setText = [box](const QString &text) { box->setText(text); };
    m_canUndo = [box] { return box->isUndoAvailable(); };
    m_canRedo = [box] { return box->isRedoAvailable(); };
    connect(box, &QLineEdit::textChanged, this, &FieldBox::Take);
}

FieldBox::FieldBox(ProjectDocument &document, FormField field, QPlainTextEdit *box)
    : FieldBox(document, field, static_cast<QWidget *>(box))
{
    m_setText = [box](const QString &text) { box->setPlainText(text); };
    m_canUndo = [box] { return box->document()->isUndoAvailable(); };
    m_canRedo = [box] { return box->document()->isRedoAvailable(); };
    connect(box, &QPlainTextEdit::textChanged, this, [this, box] { Take(TextOf(*box)); });
}

void FieldBox::Show()
{
    const QString text = m_document.project().*RowOf(m_field).text;
    if (text == m_shown)
        return;
    const QScopedValueRollback showing(m_showing, true);
    m_shown = text; // first, as the box's signal leads back here
    m_setText(text);
}

void FieldBox::Focus()
{
    m_box->setFocus();
}

bool FieldBox::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusOut)
        m_document.EndTyping();
    if (event->type() == QEvent::ShortcutOverride) {
        const auto *key = static_cast<QKeyEvent *>(event);
        if ((key->matches(QKeySequence::Undo) && !m_canUndo()) ||
            (key->matches(QKeySequence::Redo) && !m_canRedo())) {
            event->ignore(); // the box would take it all the same
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}

void FieldBox::Take(const QString &text)
{
    if (!m_showing) // else the box may have made other line ends of it
        m_shown = text;
    m_document.SetText(m_field, m_shown);
    if (!m_showing && !m_canUndo()) // by its own undo; what is deleted by hand can be taken back
        m_document.TypingTakenBack();
}

} // namespace vellumo
