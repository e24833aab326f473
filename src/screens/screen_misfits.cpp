#include "screens/screen_misfits.h"

#include "handheld/line_places.h"
#include "handheld/question_fit.h"
#include "handheld/screen_geometry.h"

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

/// A misfit as a sentence about what it is of; empty where there is none.
QString Sentence(const QString &what, const QString &misfit)
{
    return misfit.isEmpty() ? QString() : u"%1: %2."_s.arg(what, misfit);
}

} // namespace

QStringList MisfitsOf(const FormTexts &texts, const QString &type)
{
    QStringList misfits;
    const auto add = [&misfits](const QString &what, const QString &misfit) {
        misfits += Sentence(what, misfit);
    };
    const QuestionType *row = TypeNamed(type);
    add(u"Title"_s, MisfitIn(titlePlace, texts.title));
    add(u"Title"_s, LetterMisfit(texts.title));
    add(u"Question"_s, QuestionMisfit(texts.question, FreeLines(row)));
    add(u"Question"_s, LetterMisfit(texts.question));
    const LinePlace &place = row && row->id == TypeId::Checkboxes ? captionPlace : listPlace;
    for (qsizetype i = 0; i < texts.items.size(); ++i) {
        const QString item = u"Item %1"_s.arg(i + 1);
        add(item, MisfitIn(place, texts.items[i]));
        add(item, LetterMisfit(texts.items[i]));
    }
    misfits.removeAll(QString());
    return misfits;
}

QString MisfitOfDescription(QByteArrayView description)
{
    return Sentence(u"Description"_s, LetterMisfit(description));
}

} // namespace vellumo
