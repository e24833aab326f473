#pragma once

#include "platform/result.h"
#include "readback/form.h"
#include "readback/navigation_reader.h"
#include "readback/palm_database.h"
#include "readback/text_resources.h"

#include <map>
#include <optional>

namespace vellumo {

/// A decoded part of a database: none where there is no resource of it, an error where the resource
/// does not have its layout; the error's words go on after "... is damaged: ".
template <typename T> using Decoded = std::optional<Result<T>>;

// The resources that a database has once, whatever its questions are. What they hold is told in
// docs/palm-formats.md, "The resources of a project".
inline constexpr ResourceKey questionCountKey = {"flds", 1000};
inline constexpr ResourceKey valueCodesKey = {"fldt", 1001};
inline constexpr ResourceKey typeCodesKey = {"ques", 1002};
inline constexpr ResourceKey descriptionKey = {"desc", 1003};
inline constexpr ResourceKey columnNamesKey = {"tSTL", 1004};
inline constexpr ResourceKey folderKey = {"sdir", 1005};
inline constexpr ResourceKey identifierKey = {"guid", 1006};
inline constexpr ResourceKey formNameKey = {"tAIN", 1000};
inline constexpr ResourceKey versionKey = {"tver", 1};

// Those that it has for each question, by the question's number from 1.
constexpr ResourceKey FormKey(quint32 question)
{
    return {"tFRM", question};
}
constexpr ResourceKey NavigationKey(quint32 question)
{
    return {"fnav", question};
}

/// Whether a database of so many questions has this resource.
bool IsResourceOf(const ResourceKey &key, qsizetype questions);

/// That a resource does not have the layout of its type.
struct ResourceDamage {
    QByteArray type;
    quint32 number = 0;
    QString damage; ///< goes on after "... is damaged: "
};

/// What the resources of a database hold, each decoded by itself: nothing is compared with anything
/// else. Texts are in windows-1252.
struct DatabaseContent {
    Decoded<quint32> questionCount = {};
    Decoded<QByteArray> valueCodes = {}; ///< a byte for each question, as the next one
    Decoded<QByteArray> typeCodes = {};
    Decoded<QByteArray> description = {};
    Decoded<StringTable> columnNames = {};
    Decoded<QByteArray> folder = {};
    Decoded<QByteArray> identifier = {};
    Decoded<QByteArray> formName = {};
    Decoded<QByteArray> version = {};
    std::map<quint32, Result<Form>> forms =
        {}; ///< by the number of their resource, as the next one
    std::map<quint32, Result<Navigation>> navigations = {};
    /// In the order of the database, also those under numbers that no database of ours has.
    QList<ResourceDamage> damages = {};
};

DatabaseContent DecodeDatabase(const PalmDatabase &database);

} // namespace vellumo
