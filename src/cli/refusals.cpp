#include "cli/refusals.h"

#include "model/form_fields.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

/// The step of the designer that has the text, 0 = none has.
int StepOfRefusal(const Refusal &refusal)
{
    if (refusal.question > 0)
        return StepOf(TextPlace{{}, refusal.question});
    const auto *row = std::ranges::find_if(formFields, [&](const FormFieldRow &field) {
        return refusal.column.compare(field.name, Qt::CaseInsensitive) == 0;
    });
    return row == formFields.end() ? 0 : row->step;
}

Notice NoticeOf(const Refusal &refusal, RowsAre rowsAre, bool isLeftOut)
{
    Notice notice = {.kind = isLeftOut ? "warning"_L1 : "finding"_L1,
                     .code = "refused"_L1,
                     .text = refusal.reason,
                     .step = StepOfRefusal(refusal),
                     .question = refusal.question,
                     .field = refusal.column,
                     .advice = isLeftOut};
    const int row = static_cast<int>(refusal.row);
    if (rowsAre == RowsAre::LinesOfText) {
        notice.line = row;
    } else {
        notice.more.insert(u"row"_s, row);
        const QString column = refusal.column.isEmpty() ? QString() : ", "_L1 + refusal.column;
        notice.text.prepend(u"Row %1"_s.arg(row) + column + ": "_L1);
    }
    notice.shown = Visible((isLeftOut ? "left out: "_L1 : ""_L1) + notice.text);
    return notice;
}

} // namespace

bool MayWrite(const QList<Refusal> &refusals, RowsAre rowsAre, const QString &inputName,
              const CommandLine &line, const Console &console)
{
    const bool skip = line.Has(Option::Skip);
    for (const Refusal &refusal : refusals) {
        Notice notice = NoticeOf(refusal, rowsAre, skip);
        notice.file = inputName;
        console.Complain(notice);
    }
    if (refusals.isEmpty() || skip)
        return true;
    Refuse(console, Exit::NotPassed,
           {u"Nothing was written. With --skip the rest will be."_s, inputName});
    return false;
}

} // namespace vellumo
