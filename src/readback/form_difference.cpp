#include "readback/form_difference.h"

#include <span>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

enum class Base { Decimal, Hexadecimal };

template <typename T> struct NamedNumber {
    QLatin1StringView name; ///< to a user
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

// Without what makes objects alike.
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

QString Owner(const Form &)
{
    return u"the form"_s;
}

QString Owner(const FormObject &object)
{
    return Describe(object);
}

template <typename T>
QStringList Differences(const T &found, const T &expected, std::span<const NamedNumber<T>> numbers)
{
    QStringList differences;
    for (const auto &[name, value, base] : numbers) {
        if (found.*value != expected.*value)
            differences += u"the %1 of %2 is %3 instead of %4"_s.arg(
                name, Owner(found), ShownNumber(found.*value, base),
                ShownNumber(expected.*value, base));
    }
    return differences;
}

} // namespace

QStringList HeaderDifferences(const Form &found, const Form &expected)
{
    return Differences<Form>(found, expected, formNumbers);
}

bool AreAlike(const FormObject &found, const FormObject &expected)
{
    return found.kind == expected.kind && found.number == expected.number &&
           (found.kind != ObjectKind::Control || found.style == expected.style);
}

QStringList ObjectDifferences(const FormObject &found, const FormObject &expected)
{
    FormObject allowed = expected;
    // A list is as wide as its widest item: with other items, which are told, it is another width.
    if (found.items != expected.items)
        allowed.width = found.width;
    QStringList differences = Differences<FormObject>(found, allowed, objectNumbers);
    if (found.columnWidths != expected.columnWidths)
        differences += u"the columns of %1 differ"_s.arg(Describe(found));
    return differences;
}

} // namespace vellumo
