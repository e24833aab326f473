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
/// document, what the document has is shown.
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

private:
    FieldBox(ProjectDocument &document, FormField field, QWidget *box);
    void Take(const QString &text);

    ProjectDocument &m_document;
    FormField m_field;
    QWidget *m_box;
    std::function<void(const QString &text)> m_setText;
    /// As the project has it: a box knows only one kind of line break.
    QString m_shown;
    bool m_showing = false;
};

} // namespace vellumo
