#include "readback/database_check.h"

#include "readback/code_check.h"
#include "readback/expected_form.h"
#include "readback/expected_navigation.h"
#include "readback/form_check.h"
#include "readback/header_check.h"
#include "readback/part_check.h"
#include "readback/resource_check.h"
#include "readback/text_check.h"

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

/// The part that belongs to a question, where there is one.
template <typename T> Decoded<T> PartOf(const std::map<quint32, Result<T>> &parts, int question)
{
    const auto found = parts.find(quint32(question));
    return found == parts.end() ? Decoded<T>() : found->second;
}

void CheckQuestion(const DatabaseContent &content, const DeliveredQuestion &question, int number,
                   QList<Finding> &findings)
{
    if (question.type->name.isEmpty())
        findings.append(
            {"unknown-type"_L1,
             {"type"_L1, number},
             u"The type of question %1 is unknown, so that no form can be right."_s.arg(number)});
    const auto key = quint32(number);
    CheckPart(PartOf(content.forms, number), FormKey(key), {"form"_L1, number}, findings,
              [&](const Form &form) {
                  CompareForms(form, ExpectedForm(key, question), number, findings);
              });
    const TextPlace place = {"navigation"_L1, number};
    CheckPart(PartOf(content.navigations, number), NavigationKey(key), place, findings,
              [&](const Navigation &navigation) {
                  if (navigation != ExpectedNavigation(*question.type))
                      findings.append({"navigation"_L1, place,
                                       u"%1 is not that of its type."_s.arg(Describe(place))});
              });
}

} // namespace

QList<Finding> CheckDatabase(const PalmDatabase &database, const Project &project,
                             std::span<const DeliveredType> types)
{
    QList<Finding> findings;
    const DeliveredTexts texts = DeliverTexts(project, types, findings);
    const DatabaseContent content = DecodeDatabase(database);
    CheckHeader(database, texts.databaseName, findings);
    CheckOrder(database, findings);
    CheckCodes(content, texts, findings);
    CheckTexts(content, texts, findings);
    int number = 0;
    for (const DeliveredQuestion &question : texts.questions)
        CheckQuestion(content, question, ++number, findings);
    CheckForOthers(database, texts.questions.size(), findings);
    return findings;
}

} // namespace vellumo
