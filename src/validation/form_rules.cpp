#include "validation/form_rules.h"

#include "model/limits.h"
#include "model/texts.h"

#include <algorithm>
#include <span>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

template <typename Subject> struct Check {
    bool (*fails)(Subject subject);
    QLatin1StringView message;
};

using TextCheck = Check<QStringView>;
using CountCheck = Check<int>;

bool HasAnyOf(QStringView text, QLatin1StringView characters)
{
    return std::ranges::any_of(text, [characters](QChar c) { return characters.contains(c); });
}

bool IsAsciiLetter(QChar c)
{
    return (c >= u'A' && c <= u'Z') || (c >= u'a' && c <= u'z');
}

/// Whether the path begins with a drive letter, a colon and a backslash.
bool StartsAtDriveRoot(QStringView path)
{
    return path.size() >= 3 && IsAsciiLetter(path[0]) && path[1] == u':' && path[2] == u'\\';
}

// The name becomes a file name, hence the characters that it may not hold.
constexpr TextCheck nameChecks[] = {
    {[](QStringView name) { return name.isEmpty(); }, "Please enter a name for your Vellsheet."_L1},
    {[](QStringView name) { return name.size() > formNameLimit.most; }, formNameLimit.message},
    {[](QStringView name) { return HasAnyOf(name, fileNameCharacters.characters); },
     fileNameCharacters.message},
    {[](QStringView name) { return name.contains(u' '); },
     "Spaces in the Vellsheet name are not allowed."_L1},
};

constexpr TextCheck versionChecks[] = {
    {[](QStringView version) { return version.size() > formVersionLimit.most; },
     formVersionLimit.message},
    {[](QStringView version) { return version.contains(u' '); },
     "Spaces in the Vellsheet Version are not allowed."_L1},
    {[](QStringView version) { return version.contains(u'"'); },
     "Double Quotes in the Vellsheet Version are not allowed."_L1},
};

constexpr TextCheck descriptionChecks[] = {
    {[](QStringView description) { return description.size() > descriptionLimit.most; },
     descriptionLimit.message},
    {[](QStringView description) { return HasAnyOf(description, lineBreaks.characters); },
     "Carriage returns are not allowed in description."_L1},
};

constexpr QLatin1StringView invalidFolder = "This is not a valid directory name."_L1;

constexpr TextCheck folderChecks[] = {
    {[](QStringView folder) { return folder.isEmpty(); },
     "Please provide a default data directory path."_L1},
    {[](QStringView folder) { return HasAnyOf(folder.mid(2), "\":"_L1); }, invalidFolder},
    {[](QStringView folder) { return HasAnyOf(folder, "?>*/|<"_L1); }, invalidFolder},
    {[](QStringView folder) { return !StartsAtDriveRoot(folder); }, invalidFolder},
};

constexpr CountCheck countChecks[] = {
    {[](int count) { return count == 0; }, "Your Vellsheet requires a minimum of one question."_L1},
    {[](int count) { return count > questionCountLimit.most; }, questionCountLimit.message},
};

template <typename Subject>
void Apply(std::span<const Check<Subject>> checks, Subject subject, bool &failed, QString &message)
{
    const auto failing = std::ranges::find_if(
        checks, [subject](const Check<Subject> &check) { return check.fails(subject); });
    if (failing == checks.end())
        return;
    failed = true;
    message = failing->message;
}

void TrimAndApply(std::span<const TextCheck> checks, QString &text, bool &failed, QString &message)
{
    text = TrimBlanks(text).toString();
    Apply<QStringView>(checks, text, failed, message);
}

} // namespace

void ValidateAppName(QString &name, bool &failed, QString &message)
{
    TrimAndApply(nameChecks, name, failed, message);
}

void ValidateAppVersion(QString &version, bool &failed, QString &message)
{
    TrimAndApply(versionChecks, version, failed, message);
}

void ValidateAppDesc(QString &description, bool &failed, QString &message)
{
    TrimAndApply(descriptionChecks, description, failed, message);
}

void ValidateAppDir(QString &folder, bool &failed, QString &message)
{
    TrimAndApply(folderChecks, folder, failed, message);
}

void ValidateQuestionCount(int count, bool &failed, QString &message)
{
    Apply<int>(countChecks, count, failed, message);
}

} // namespace vellumo
