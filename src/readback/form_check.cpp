#include "readback/form_check.h"

#include "readback/form_difference.h"
#include "readback/shown_text.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

constexpr quint32 questionLabel = 1; // the label with the text of the question

/// Collects what differs on the form of one question.
class FormCheck
{
public:
    FormCheck(int question, QList<Finding> &findings) : m_question(question), m_findings(findings)
    {}

    void Compare(const Form &found, const Form &expected)
    {
        AddToForm("form-header"_L1, HeaderDifferences(found, expected));
        const qsizetype count = std::max(found.objects.size(), expected.objects.size());
        for (qsizetype i = 0; i < count; ++i) {
            if (!AreAlike(found, expected, i)) {
                // One object too many or too few would make all that follow differ.
                AddToForm("form-objects"_L1, {u"object %1 is %2 instead of %3"_s.arg(
                                                 QString::number(i + 1), DescribeAt(found, i),
                                                 DescribeAt(expected, i))});
                return;
            }
            Compare(found.objects[i], expected.objects[i]);
        }
    }

private:
    static bool AreAlike(const Form &found, const Form &expected, qsizetype index)
    {
        return index < found.objects.size() && index < expected.objects.size() &&
               vellumo::AreAlike(found.objects[index], expected.objects[index]);
    }

    static QString DescribeAt(const Form &form, qsizetype index)
    {
        return index < form.objects.size() ? Describe(form.objects[index]) : u"nothing"_s;
    }

    void Compare(const FormObject &found, const FormObject &expected)
    {
        AddToForm("form-object"_L1, ObjectDifferences(found, expected));
        if (found.text != expected.text)
            AddOtherText(found, expected);
        CompareItems(found.items, expected.items);
    }

    /// Texts of the question itself are told by their place in the project, others as part of the
    /// form.
    void AddOtherText(const FormObject &found, const FormObject &expected)
    {
        if (found.kind == ObjectKind::Title)
            m_findings.append(
                OtherText("title"_L1, {"title"_L1, m_question}, found.text, expected.text));
        else if (found.kind == ObjectKind::Label && found.number == questionLabel)
            m_findings.append(OtherText("question-text"_L1, {"question text"_L1, m_question},
                                        found.text, expected.text));
        else
            AddToForm("form-object"_L1,
                      {u"the text of %1 is %2"_s.arg(Describe(found),
                                                     ShownDifference(found.text, expected.text))});
    }

    void CompareItems(const QList<QByteArray> &found, const QList<QByteArray> &expected)
    {
        const TextPlace place = {"item list"_L1, m_question};
        if (found.size() != expected.size()) {
            m_findings.append({"item-count"_L1, place,
                               u"%1 has %2 items instead of %3."_s.arg(Describe(place))
                                   .arg(found.size())
                                   .arg(expected.size())});
            return;
        }
        for (qsizetype i = 0; i < found.size(); ++i) {
            if (found[i] != expected[i])
                m_findings.append({"item"_L1, place,
                                   u"%1 has as item %2 %3."_s.arg(Describe(place))
                                       .arg(i + 1)
                                       .arg(ShownDifference(found[i], expected[i]))});
        }
    }

    void AddToForm(QLatin1StringView code, const QStringList &differences)
    {
        const TextPlace place = {"form"_L1, m_question};
        for (const QString &difference : differences)
            m_findings.append({code, place, u"%1: %2."_s.arg(Describe(place), difference)});
    }

    int m_question;
    QList<Finding> &m_findings;
};

} // namespace

void CompareForms(const Form &found, const Form &expected, int question, QList<Finding> &findings)
{
    FormCheck(question, findings).Compare(found, expected);
}

} // namespace vellumo
