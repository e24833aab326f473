#pragma once

#include "model/form_fields.h"

#include <QObject>

#include <functional>

class QLineEdit;
class QPlainTextEdit;
class QWidget;

namespace vellumo {

class ProjectDocument;

/// A text box in which a field of the form information is entered: what is typed goes to the
/// document, what the document has is shown. The keys of undo and redo are the box's while it has
/// steps of its own to take, and else the window's.
class FieldBox : public QObject
{
    Q_OBJECT

public:
    /// Document and box must outlive this. Refuses the keys that the field must not hold.
    FieldBox(ProjectDocument &document, FormField field, QLineEdit *box);
    FieldBox(ProjectDocument &document, FormField field, QPlainTextEdit *box);

    FormField Field() const { return m_field; }

    /// Shows the document's text; where that is another one than the box had, the project counts as
    /// changed.
    void Show();
    void Focus();

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    FieldBox(ProjectDocument &document, FormField field, QWidget *box);
    void Take(const QString &text);

    ProjectDocument &m_document;
    FormField m_field;
    QWidget *m_box;
    std::function<void(const QString &text)> m_setText;
    std::function<bool()> m_canUndo, m_canRedo; ///< by the box's own steps
    /// As the project has it: a box knows only one kind of line break.
    QString m_shown;
    bool m_showing = false;
};

} // namespace vellumo
