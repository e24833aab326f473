#pragma once

#include <QLatin1StringView>

namespace vellumo {

// What a form and its questions may be at most, which characters some of their texts may not hold,
// and what a person is told who goes beyond. Lengths are in UTF-16 units. Messages that say "under"
// mean "at most".

struct Limit {
    qsizetype most;
    QLatin1StringView message;

    /// The message where something of this size is over the limit, empty otherwise.
    constexpr QLatin1StringView Objection(qsizetype size) const
    {
        return size > most ? message : QLatin1StringView();
    }
};

inline constexpr Limit formNameLimit = {
    24, QLatin1StringView("Please keep the Vellsheet name under 24 characters in length.")};
inline constexpr Limit formVersionLimit = {
    32, QLatin1StringView("Please keep your Vellsheet Version under 32 characters in length.")};
inline constexpr Limit descriptionLimit = {
    200,
    QLatin1StringView("Please keep your Vellsheet description under 200 characters in length.")};
inline constexpr Limit questionCountLimit = {
    128, QLatin1StringView("The maximum number of questions is 128.")};
inline constexpr Limit titleLimit = {
    20, QLatin1StringView("Please keep the title length to 20 characters or less.")};
inline constexpr Limit questionTextLimit = {
    255, QLatin1StringView("Please keep the question length to 255 characters or less.")};
inline constexpr Limit columnNameLimit = {
    255, QLatin1StringView("Please keep the column name length to 255 characters or less.")};
inline constexpr Limit itemLimit = {
    32, QLatin1StringView("Please keep the item length to 32 characters or less.")};
inline constexpr Limit pulldownLimit = {
    255, QLatin1StringView("Please keep the list to 255 items or less.")};
inline constexpr Limit checkboxLimit = {
    32, QLatin1StringView("Please keep the Check Box to 32 items or less.")};

/// Characters that are refused, and what is said to who types one.
struct RefusedCharacters {
    QLatin1StringView characters, message;
};

inline constexpr RefusedCharacters doubleQuotes = {
    QLatin1StringView("\""), QLatin1StringView("Double quotes are not allowed.")};
inline constexpr RefusedCharacters lineBreaks = {
    QLatin1StringView("\r\n"), QLatin1StringView("Carriage returns are not allowed.")};
/// Of a form name, which becomes the name of files.
inline constexpr RefusedCharacters fileNameCharacters = {
    QLatin1StringView("\"\\/:*?<>|"),
    QLatin1StringView("\"\\/:*?<>|are not allowed for file name")};

} // namespace vellumo
