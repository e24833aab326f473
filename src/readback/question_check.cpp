#include "readback/question_check.h"

#include "readback/expected_form.h"
#include "readback/form_reader.h"
#include "readback/shown_text.h"

#include <algorithm>
#include <span>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

constexpr quint32 questionLabel = 1;

enum class Base { Decimal, Hexadecimal };

template <typename T> struct NamedNumber {
    QLatin1StringView name;
    quint32 T::*value;
    Base base = Base::Decimal;
};

constexpr NamedNumber<Form> formNumbers[] = {
    {"number"_L1, &Form::number},
    {"left edge"_L1, &Form::x},
    {"top edge"_L1, &Form::y},
    {"width"_L1, &Form::width},
    {"height"_L1, &Form::height},
    {"frame"_L1, &Form::frame},
    {"flag word"_L1, &Form::flags, Base::Hexadecimal},
};

// The kind, number and style of an object are its description; they are compared with that.
constexpr NamedNumber<FormObject> objectNumbers[] = {
    {"left edge"_L1, &FormObject::x},
    {"top edge"_L1, &FormObject::y},
    {"width"_L1, &FormObject::width},
    {"height"_L1, &FormObject::height},
    {"flag word"_L1, &FormObject::flags, Base::Hexadecimal},
    {"font"_L1, &FormObject::font},
    {"group"_L1, &FormObject::group},
    {"longest content"_L1, &FormObject::maxChars},
    {"number of rows"_L1, &FormObject::rows},
    {"value"_L1, &FormObject::value},
    {"minimum"_L1, &FormObject::minimum},
    {"maximum"_L1, &FormObject::maximum},
    {"page size"_L1, &FormObject::pageSize},
    {"list"_L1, &FormObject::list},
};

QString ShownNumber(quint32 number, Base base)
{
    return base == Base::Decimal ? QString::number(number)
                                 : u"0x%1"_s.arg(number, 4, 16, QChar(u'0'));
}

/// Collects what differs on one form.
class FormCheck
{
public:
    FormCheck(int question, QList<Finding> &findings) : m_question(question), m_findings(findings)
    {}

    void Compare(const Form &found, const Form &expected)
    {
        CompareNumbers<Form>(found, expected, formNumbers, "form-header"_L1, u"the form"_s);
        const qsizetype count = std::max(found.objects.size(), expected.objects.size());
        for (qsizetype i = 0; i < count; ++i) {
            const QString is = DescribeAt(found, i);
            const QString shouldBe = DescribeAt(expected, i);
            if (is != shouldBe) {
                AddToForm("form-objects"_L1, u"object %1 is %2 instead of %3"_s.arg(
                                                 QString::number(i + 1), is, shouldBe));
                return;
            }
            Compare(found.objects[i], expected.objects[i]);
        }
    }

private:
    static QString DescribeAt(const Form &form, qsizetype index)
    {
        return index < form.objects.size() ? Describe(form.objects[index]) : u"nothing"_s;
    }

    void Compare(const FormObject &found, FormObject expected)
    {
        // A list is as wide as its widest item, but not less than expected.
        if (expected.kind == ObjectKind::List)
            expected.width = std::max(expected.width, found.width);
        const QString name = Describe(found);
        CompareNumbers<FormObject>(found, expected, objectNumbers, "form-object"_L1, name);
        if (found.columnWidths != expected.columnWidths)
            AddToForm("form-object"_L1, u"the columns of %1 differ"_s.arg(name));
        CompareText(found, expected);
        CompareItems(found.items, expected.items);
    }

    template <typename T>
    void CompareNumbers(const T &found, const T &expected, std::span<const NamedNumber<T>> numbers,
                        QLatin1StringView code, const QString &owner)
    {
        for (const NamedNumber<T> &number : numbers) {
            const quint32 is = found.*number.value;
            const quint32 shouldBe = expected.*number.value;
            if (is != shouldBe)
                AddToForm(code, u"the %1 of %2 is %3 instead of %4"_s.arg(
                                    number.name, owner, ShownNumber(is, number.base),
                                    ShownNumber(shouldBe, number.base)));
        }
    }

    void CompareText(const FormObject &found, const FormObject &expected)
    {
        if (found.text == expected.text)
            return;
        if (found.kind == ObjectKind::Title)
            m_findings.append(
                OtherText("title"_L1, {"title"_L1, m_question}, found.text, expected.text));
        else if (found.kind == ObjectKind::Label && found.number == questionLabel)
            m_findings.append(OtherText("question-text"_L1, {"question text"_L1, m_question},
                                        found.text, expected.text));
        else
            AddToForm("form-object"_L1,
                      u"the text of %1 is %2"_s.arg(Describe(found),
                                                    ShownDifference(found.text, expected.text)));
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

    void AddToForm(QLatin1StringView code, const QString &difference)
    {
        const TextPlace place = {"form"_L1, m_question};
        m_findings.append({code, place, u"%1: %2."_s.arg(Describe(place), difference)});
    }

    int m_question;
    QList<Finding> &m_findings;
};

} // namespace

void CheckForm(const QByteArray &resource, const DeliveredQuestion &question, int number,
               QList<Finding> &findings)
{
    const Result<Form> form = ReadForm(resource);
    if (form)
        FormCheck(number, findings).Compare(*form, ExpectedForm(quint32(number), question));
    else
        findings.append(DamagedResource({"form"_L1, number}, form.error().text));
}

void CheckNavigation(const QByteArray &resource, const DeliveredQuestion &question, int number,
                     QList<Finding> &findings)
{
    const TextPlace place = {"navigation"_L1, number};
    const Result<Navigation> navigation = ReadNavigation(resource);
    if (!navigation)
        findings.append(DamagedResource(place, navigation.error().text));
    else if (!(*navigation == ExpectedNavigation(question.type)))
        findings.append(
            {"navigation"_L1, place, u"%1 is not that of its type."_s.arg(Describe(place))});
}

} // namespace vellumo
