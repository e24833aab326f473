#pragma once

#include <QLatin1StringView>

namespace vellumo {

// What the windows and the help file must agree on: which number leads to which page.

namespace HelpContext {

inline constexpr quint32 formInformation = 1;
inline constexpr quint32 formName = 2;
inline constexpr quint32 formVersion = 3;
inline constexpr quint32 formDescription = 4;
inline constexpr quint32 questions = 5;
inline constexpr quint32 questionPreview = 10;
inline constexpr quint32 uploadingData = 11;
inline constexpr quint32 csvFile = 12;
inline constexpr quint32 finalReview = 13;
inline constexpr quint32 errorList = 14;
inline constexpr quint32 questionWizard = 15;
inline constexpr quint32 fitting = 16;
inline constexpr quint32 questionTypes = 17;
inline constexpr quint32 items = 18;
inline constexpr quint32 questionProperties = 19;

} // namespace HelpContext

struct HelpTopic {
    quint32 context;
    QLatin1StringView page; ///< its file in the folder help
};

inline constexpr HelpTopic helpTopics[] = {
    {HelpContext::formInformation, QLatin1StringView("information.html")},
    {HelpContext::formName, QLatin1StringView("name.html")},
    {HelpContext::formVersion, QLatin1StringView("version.html")},
    {HelpContext::formDescription, QLatin1StringView("description.html")},
    {HelpContext::questions, QLatin1StringView("questions.html")},
    {HelpContext::questionPreview, QLatin1StringView("preview.html")},
    {HelpContext::uploadingData, QLatin1StringView("upload.html")},
    {HelpContext::csvFile, QLatin1StringView("csv.html")},
    {HelpContext::finalReview, QLatin1StringView("review.html")},
    {HelpContext::errorList, QLatin1StringView("errors.html")},
    {HelpContext::questionWizard, QLatin1StringView("wizard.html")},
    {HelpContext::fitting, QLatin1StringView("fitting.html")},
    {HelpContext::questionTypes, QLatin1StringView("types.html")},
    {HelpContext::items, QLatin1StringView("items.html")},
    {HelpContext::questionProperties, QLatin1StringView("properties.html")},
};

inline constexpr QLatin1StringView helpTitle{"Vellumo Designer Help"};
inline constexpr QLatin1StringView helpDefaultPage{"index.html"};
inline constexpr QLatin1StringView helpContents{"contents.hhc"};

} // namespace vellumo
