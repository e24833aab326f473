#include "exchange/form_sheet.h"

#include "exchange/sheet_names.h"
#include "handheld/arriving_text.h"
#include "model/question_types.h"

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

/// How a type stands in the sheet.
struct SheetType {
    TypeId type;
    QLatin1StringView name; ///< a list's name follows those that choose
    QLatin1StringView appearance = {};
    QLatin1StringView parameters = {};
    QLatin1StringView hint = {}; ///< what the type means besides
};

// A photograph of a signature may be smaller than what a camera gives.
constexpr auto picture = "max-pixels=1600"_L1;
constexpr auto yesNoList = "yes_no"_L1;

constexpr std::array<SheetType, typeCount> sheetTypes = {{
    {TypeId::Text, "text"_L1},
    {TypeId::Numeric, "decimal"_L1},
    {TypeId::PulldownList, "select_one"_L1, "minimal"_L1},
    {TypeId::YesNo, "select_one"_L1},
    {TypeId::Signature, "image"_L1, "signature"_L1, picture},
    {TypeId::Notes, "image"_L1, "draw"_L1, picture},
    {TypeId::DateTime, "dateTime"_L1},
    {TypeId::Currency, "decimal"_L1, {}, {}, "an amount of money"_L1},
    {TypeId::ScannedBarcode, "barcode"_L1},
    {TypeId::Checkboxes, "select_multiple"_L1},
}};
static_assert(HasRowPerType(sheetTypes));

/// Fills the three tables question by question.
class Filling
{
public:
    explicit Filling(const Project &project)
        : m_items(project.source.ItemsById()),
          m_names(SheetNames(ColumnNamesOf(project))),
          m_lists(SheetNames(m_names, yesNoList))
    {}

    Outcome Add(const QuestionRow &row, int number)
    {
        m_number = number;
        const QuestionType *type = TypeNamed(row.Type);
        if (!type)
            return Error{u"question %1 is of the unknown type '%2'"_s.arg(number).arg(row.Type)};
        const QStringList items = m_items.value(row.Id);
        if (type->items && ArrivingItems(items).isEmpty())
            return Error{u"question %1 has no items"_s.arg(number)};
        const SheetType &sheet = RowOf(sheetTypes, type->id);
        const QString name = NameOf(row);
        const QString list = ListOf(*type, items);
        m_survey.rows.append({Joined(sheet.name, list, u" "_s), name, LabelOf(row),
                              Joined(HintOf(row), sheet.hint, u": "_s), sheet.appearance,
                              sheet.parameters});
        return done;
    }

    FormSheet Finished(const Project &project)
    {
        AddLossesOf(project);
        SheetTable settings = {u"settings"_s, {u"form_title"_s, u"form_id"_s, u"version"_s}};
        const QString id = SheetNames({project.FormName}).first();
        if (id != project.FormName)
            Lose("form-id"_L1, {"form name"_L1}, u"is '%1' where a name has to be valid"_s.arg(id));
        const QString version = ArrivingText(project.FormVersion);
        TellArriving(version, project.FormVersion, {"form version"_L1});
        settings.rows.append({WithoutReference(project.FormName, {"form name"_L1}), id, version});
        return {{m_survey, m_choices, settings}, m_losses};
    }

private:
    static QString Joined(const QString &one, const QString &other, const QString &between)
    {
        return one.isEmpty() || other.isEmpty() ? one + other : one + between + other;
    }

    void Lose(QLatin1StringView code, const TextPlace &place, const QString &what,
              bool changes = false)
    {
        m_losses.append({code, place, u"%1 %2."_s.arg(Describe(place), what), changes});
    }

    QString NameOf(const QuestionRow &row)
    {
        QString name = m_names[m_number - 1];
        if (name != row.ColumnName)
            Lose("name-changed"_L1, {"column name"_L1, m_number},
                 u"is '%1' in the sheet instead of '%2'"_s.arg(name, row.ColumnName), true);
        return name;
    }

    QString LabelOf(const QuestionRow &row)
    {
        const TextPlace place = {"question text"_L1, m_number};
        const QString text = ArrivingWording(row.Question);
        // The escape of a line break is typed for just that.
        if (text != QString(row.Question).replace(u"\\n"_s, u"\n"_s))
            TellArriving(text, row.Question, place);
        return WithoutReference(text, place);
    }

    QString HintOf(const QuestionRow &row)
    {
        const TextPlace place = {"title"_L1, m_number};
        const QString text = ArrivingText(row.Title);
        TellArriving(text, row.Title, place);
        return WithoutReference(text, place);
    }

    /// The sheet has texts as the handheld shows them, which takes no text from a question.
    void TellArriving(const QString &arriving, const QString &typed, const TextPlace &place)
    {
        if (arriving != typed)
            Lose("text-changed"_L1, place,
                 u"is '%1' in the sheet, as on the handheld, instead of '%2'"_s.arg(arriving,
                                                                                    typed));
    }

    /// Nothing refers to another question, which is what "${" would do.
    QString WithoutReference(QString text, const TextPlace &place)
    {
        if (!text.contains("${"_L1))
            return text;
        Lose("text-changed"_L1, place,
             u"has \"$ {\" in the sheet instead of \"${\", which would be a reference there"_s,
             true);
        return text.replace(u"${"_s, u"$ {"_s);
    }

    /// The name of the list that a question chooses from; empty where it chooses from none.
    QString ListOf(const QuestionType &type, const QStringList &items)
    {
        if (type.id == TypeId::YesNo)
            return YesNoList();
        if (!type.items)
            return {};
        QString list = m_lists[m_number - 1];
        QString other; // the first that has another name
        for (const QString &item : items)
            TellArriving(ArrivingItems({item}).join("', '"_L1), item, {"item"_L1, m_number});
        const QStringList arriving = ArrivingItems(items), choices = ChoiceNames(arriving);
        for (qsizetype i = 0; i < arriving.size(); ++i) {
            const QString &item = arriving[i], &choice = choices[i];
            m_choices.rows.append({list, choice, WithoutReference(item, {"item"_L1, m_number})});
            if (choice != item && other.isEmpty())
                other = u"such as '%1' for '%2'"_s.arg(choice, item);
        }
        LoseChoices(other);
        return list;
    }

    /// Their labels have the items as they are, so that this changes no text of a question.
    void LoseChoices(const QString &other)
    {
        if (!other.isEmpty())
            m_losses.append(
                {"choice-name"_L1,
                 {"item"_L1, m_number},
                 u"Items of question %1 have other names in the sheet, "_s.arg(m_number) + other +
                     u'.'});
    }

    QString YesNoList()
    {
        if (!m_hasYesNo)
            m_choices.rows += {{yesNoList, u"yes"_s, u"Yes"_s}, {yesNoList, u"no"_s, u"No"_s}};
        m_hasYesNo = true;
        return yesNoList;
    }

    void AddLossesOf(const Project &project)
    {
        if (!m_survey.rows.isEmpty())
            m_losses.append(
                {"title-as-hint"_L1, {"title"_L1}, u"The titles of the questions are hints."_s});
        if (!project.Description.isEmpty())
            Lose("not-in-sheet"_L1, {"description"_L1}, u"is not in the sheet"_s);
        if (!project.FormPath.isEmpty())
            Lose("not-in-sheet"_L1, {"data folder"_L1}, u"is not in the sheet"_s);
    }

    static QStringList ColumnNamesOf(const Project &project)
    {
        QStringList names;
        for (const QuestionRow &row : project.source.Questions().Rows())
            names += ArrivingText(row.ColumnName);
        return names;
    }

    const QHash<int, QStringList> m_items;
    const QStringList m_names, m_lists; ///< of each question
    SheetTable m_survey = {
        u"survey"_s,
        {u"type"_s, u"name"_s, u"label"_s, u"hint"_s, u"appearance"_s, u"parameters"_s}};
    SheetTable m_choices = {u"choices"_s, {u"list_name"_s, u"name"_s, u"label"_s}};
    bool m_hasYesNo = false;
    int m_number = 0;
    QList<SheetLoss> m_losses;
};

} // namespace

Result<FormSheet> MakeFormSheet(const Project &project)
{
    Filling filling(project);
    int number = 0;
    for (const QuestionRow &row : project.source.Questions().Rows())
        if (const Outcome added = filling.Add(row, ++number); !added)
            return added.error();
    return filling.Finished(project);
}

} // namespace vellumo
