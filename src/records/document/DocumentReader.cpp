#include "records/document/DocumentReader.h"

#include "records/document/DocumentFormat.h"
#include "records/document/DocumentInput.h"
#include "records/document/DocumentRowReader.h"
#include "records/document/DocumentStage.h"
#include "runtime/RuntimeError.h"
#include "store/Connection.h"

#include <QDir>
#include <QFileInfo>

#include <fstream>
#include <set>
#include <tuple>

#include <SQLiteCpp/SQLiteCpp.h>
#include <nlohmann/json.hpp>

namespace {
using Json = nlohmann::json;
using Event = Json::parse_event_t;
using Section = DocumentSection;

constexpr int Deepest = 6; ///< an odd value among the amounts of an ingredient of a recipe
constexpr int ProgressRows = 1000;

[[noreturn]] void Refuse(const QString& reason) {
    throw RuntimeError(ErrorNumber::TypeMismatch, reason);
}

QString Quoted(const std::string& name) {
    return u'"' + QString::fromStdString(name.substr(0, 60)) + u'"';
}

/// Takes a document in while it is parsed: a member or a row that is whole is read and dropped.
class Intake {
public:
    Intake(DocumentInput& input, DocumentStage& stage,
           const std::function<void(qint64, qint64)>& progress)
        : input_(input)
        , rows_(stage)
        , progress_(progress) {}

    /// Whether the parser is to keep what the event tells.
    bool Take(int depth, Event event, const Json& parsed);
    void End() const; ///< fails where a member is missing that must be there
    QString Place() const;

    DocumentHead head;

private:
    bool Begins(Event event) const {
        return event == Event::object_start || event == Event::array_start;
    }
    void TakeName(int depth, const std::string& name);
    void BeginMember(const std::string& name);
    bool TakeMember(const Json& value);
    void TakeHead(const Json& value);
    void TakeLastKeys(const Json& keys);
    void TakeSettings(const Json& settings);
    bool TakeRow(const Json& row);
    void RequireShape(int depth, Event event) const;

    DocumentInput& input_;
    DocumentRowReader rows_;
    const std::function<void(qint64, qint64)>& progress_;
    std::string member_;
    const Section* list_ = nullptr; ///< the section whose rows follow
    int row_ = 0;
    std::vector<std::set<std::string>> names_{Deepest + 2}; ///< that an object holds, by depth
};

bool Intake::Take(int depth, Event event, const Json& parsed) {
    RequireShape(depth, event);
    if (event == Event::object_start)
        names_[size_t(depth) + 1].clear();
    if (event == Event::key)
        TakeName(depth, parsed.get_ref<const std::string&>());
    if (event == Event::key || Begins(event))
        return true;
    if (list_ != nullptr && depth == 2)
        return TakeRow(parsed);
    return depth == 1 ? TakeMember(parsed) : true;
}

/// Refuses what cannot be a document before it is in memory.
void Intake::RequireShape(int depth, Event event) const {
    if (Begins(event) && depth > Deepest)
        Refuse(QStringLiteral("lists and objects stand too deep in one another"));
    if (depth == 0 && (event == Event::array_start || event == Event::value))
        Refuse(DocumentFormat::NotOne());
    if (list_ != nullptr && depth == 1 && (event == Event::object_start || event == Event::value))
        Refuse(QStringLiteral("it is not a list"));
    if (list_ != nullptr && depth == 2 && (event == Event::array_start || event == Event::value))
        Refuse(QStringLiteral("it is not an object"));
}

void Intake::TakeName(int depth, const std::string& name) {
    if (!names_[size_t(depth)].insert(name).second)
        Refuse("the member " + Quoted(name) + " is there twice");
    if (depth == 1)
        BeginMember(name);
}

void Intake::BeginMember(const std::string& name) {
    member_ = name;
    list_ = DocumentSections::Find(name);
    row_ = 0;
    const auto& seen = names_[1];
    const bool isHead = name == "format" || name == "version" || name == "nutrients";
    if (!isHead &&
        !(seen.contains("format") && seen.contains("version") && seen.contains("nutrients")))
        Refuse(DocumentFormat::NotOne());
    if (!isHead && list_ == nullptr && name != "lastKeys" && name != "settings")
        Refuse(QStringLiteral("this version of Halvane does not know this member"));
}

bool Intake::TakeMember(const Json& value) {
    if (list_ == nullptr)
        TakeHead(value);
    input_.EndRow();
    return false;
}

void Intake::TakeHead(const Json& value) {
    if (member_ == "format" && value != DocumentFormat::Name)
        Refuse(DocumentFormat::NotOne());
    if (member_ == "version" && value != DocumentFormat::Version)
        Refuse(QStringLiteral("this version of Halvane reads version %1 of the format only")
                   .arg(DocumentFormat::Version));
    if (member_ == "nutrients")
        rows_.ReadNutrients(value);
    if (member_ == "lastKeys")
        TakeLastKeys(value);
    if (member_ == "settings")
        TakeSettings(value);
}

void Intake::TakeLastKeys(const Json& keys) {
    for (const auto& [name, key] : keys.items()) {
        if (!key.is_number_integer())
            Refuse("the member " + Quoted(name) + " is not a whole number");
        head.lastKeys[name] = key.get<std::int64_t>();
    }
}

void Intake::TakeSettings(const Json& settings) {
    for (const auto& [name, value] : settings.items()) {
        if (!value.is_string())
            Refuse("the member " + Quoted(name) + " is not a text");
        head.settings[QString::fromStdString(name)] =
            QString::fromStdString(value.get_ref<const std::string&>());
    }
}

bool Intake::TakeRow(const Json& row) {
    rows_.ReadRow(*list_, row);
    input_.EndRow();
    if (++row_ % ProgressRows == 0)
        progress_(input_.Taken(), input_.Size());
    return false;
}

void Intake::End() const {
    if (!names_[1].contains("nutrients"))
        Refuse(DocumentFormat::NotOne());
}

QString Intake::Place() const {
    if (member_.empty())
        return {};
    const QString member = QString::fromStdString(member_);
    return list_ == nullptr ? member : member + QStringLiteral(", row %1").arg(row_ + 1);
}

/// The line and the column of a byte, counted from 1.
QString LineOf(const QString& path, size_t byte) {
    std::ifstream file(path.toStdString(), std::ios::binary);
    size_t line = 1;
    size_t column = 0;
    for (size_t at = 0; at < byte && file.good(); ++at) {
        column = file.get() == '\n' ? 0 : column + 1;
        line += column == 0 ? 1 : 0;
    }
    return QStringLiteral("line %1, column %2").arg(line).arg(column);
}

QString Named(const QString& path, const QString& place) {
    const QString file = QDir::toNativeSeparators(path);
    return place.isEmpty() ? file : file + u", " + place;
}

RuntimeError NotJson(const QString& path, const Json::parse_error& error) {
    const bool cutOff = error.byte > size_t(QFileInfo(path).size());
    const QString what = cutOff ? QStringLiteral("the file ends too early")
                                : QStringLiteral("this is not JSON in UTF-8");
    return {ErrorNumber::TypeMismatch, Named(path, LineOf(path, error.byte)) + ": " + what + u'.'};
}

void Parse(const QString& path, DocumentInput& input, Intake& intake) {
    try {
        std::ignore =
            Json::parse(input.begin(), input.end(), [&](int depth, Event event, Json& parsed) {
                return intake.Take(depth, event, parsed);
            });
        intake.End();
    } catch (const Json::parse_error& error) {
        throw NotJson(path, error);
    } catch (const Json::exception&) {
        throw RuntimeError(ErrorNumber::TypeMismatch,
                           Named(path, intake.Place()) + ": a number is beyond all bounds.");
    } catch (const RuntimeError& failure) {
        if (failure.Number() != ErrorNumber::TypeMismatch)
            throw;
        throw RuntimeError(failure.Number(),
                           Named(path, intake.Place()) + ": " + failure.Description() + u'.');
    }
}
} // namespace

DocumentHead DocumentReader::Read(const QString& path, DocumentStage& stage,
                                  const std::function<void(qint64, qint64)>& progress) {
    DocumentInput input(path);
    Intake intake(input, stage, progress);
    Parse(path, input, intake);
    return intake.head;
}
