#include "readback/recovered_project.h"

#include "readback/database_content.h"
#include "readback/delivered_types.h"
#include "readback/recovered_text.h"

#include <algorithm>

namespace vellumo {
namespace {

template <typename T> T ValueOf(const Decoded<T> &part)
{
    return part && *part ? **part : T();
}

/// What the form of a question has; an empty one where there is none that can be read.
Form FormOf(const DatabaseContent &content, int question)
{
    const auto found = content.forms.find(quint32(question));
    return found != content.forms.end() && found->second ? *found->second : Form();
}

/// The first object of a kind, or one of the kind that is empty.
FormObject FirstOf(const Form &form, ObjectKind kind)
{
    const auto found = std::ranges::find(form.objects, kind, &FormObject::kind);
    return found == form.objects.end() ? FormObject{kind} : *found;
}

QStringList RecoverItems(const QList<QByteArray> &delivered)
{
    // A list without items comes of one that is empty.
    if (delivered.isEmpty())
        return {QString()};
    QStringList items;
    for (const QByteArray &item : delivered)
        items += RecoverItem(item, delivered.size() > 1);
    return items;
}

/// Puts together what a database tells of its questions in several resources.
class Recovery
{
public:
    explicit Recovery(const PalmDatabase &database) : m_content(DecodeDatabase(database))
    {
        m_project.FormName = RecoverName(database.name);
        m_project.FormVersion = RecoverVersion(ValueOf(m_content.version));
        m_project.Description = RecoverWording(ValueOf(m_content.description));
        m_project.FormPath = RecoverFolder(ValueOf(m_content.folder));
    }

    Project Run()
    {
        for (qsizetype i = 0; i < QuestionCount(); ++i)
            AppendQuestion(i);
        m_project.source.MoveFirst();
        return std::move(m_project);
    }

private:
    /// As many as any of the parts has: where they do not agree, nothing is left behind.
    qsizetype QuestionCount() const
    {
        return std::max({m_types.size(), m_columnNames.size(), qsizetype(m_content.forms.size())});
    }

    void AppendQuestion(qsizetype i)
    {
        const int number = int(i) + 1;
        const Form form = FormOf(m_content, number);
        const DeliveredType &type = i < m_types.size()
                                        ? TypeOfCode(deliveredTypes, quint8(m_types[i]))
                                        : TypeOfName(deliveredTypes, {});
        const int id = m_project.source.IssueId();
        m_project.source.Questions().Append(
            {.Order = number,
             .Title = RecoverWritten(FirstOf(form, ObjectKind::Title).text),
             .Question = RecoverWording(FirstOf(form, ObjectKind::Label).text),
             .Type = type.name,
             .ColumnName = RecoverWritten(m_columnNames.value(i)),
             .Id = id});
        if (type.ownsItems)
            m_project.source.AppendItems(id, RecoverItems(FirstOf(form, ObjectKind::List).items));
    }

    const DatabaseContent m_content;
    const QByteArray m_types = ValueOf(m_content.typeCodes);
    const QList<QByteArray> m_columnNames = ValueOf(m_content.columnNames).entries;
    Project m_project;
};

} // namespace

Project RecoverProject(const PalmDatabase &database)
{
    return Recovery(database).Run();
}

} // namespace vellumo
