#include "support/ExchangeTest.h"

#include "exchange/Columns.h"
#include "exchange/Moment.h"

const std::string& ExchangeTest::Database() {
    if (database_.empty())
        database_ = OnServer() ? Cluster::One().CreateDatabase() : folder_ / "exchange.db";
    return database_;
}

Server& ExchangeTest::Start(Server::Settings settings) {
    settings.try_emplace("database", Database());
    server_ = std::make_unique<Server>(settings);
    return *server_;
}

void ExchangeTest::Restart(Server::Settings settings) {
    EXPECT_EQ(server_->End(), 0);
    Start(std::move(settings));
}

httplib::Result ExchangeTest::Post(const std::string& path, const json& body,
                                   const std::string& token) {
    httplib::Headers headers;
    if (!token.empty())
        headers.emplace("Authorization", "Bearer " + token);
    return server_->Client().Post(path, headers, body.dump(), "application/json");
}

std::string ExchangeTest::Text(const std::string& path) {
    const auto reply = Get(path);
    EXPECT_TRUE(reply && reply->status == 200) << path;
    return reply ? reply->body : std::string();
}

nlohmann::json ExchangeTest::Soup(bool isPublic) {
    return {{"RecipeName", "Lentil soup"},
            {"Instructions", "Rinse the lentils.\nSimmer."},
            {"RecipeYield", 4},
            {"PrepTime", 45.5},
            {"ServingName", "1 bowl"},
            {"EMAILFROM", "anna@example.com"},
            {"EMAILTO", "bert@example.org"},
            {"ISPUBLIC", isPublic}};
}

nlohmann::json ExchangeTest::Row(double calories, const std::string& food) {
    auto row = json::array({nullptr});
    for (int position = 1; position <= exchange::NutrientCount; ++position)
        row.push_back(position + 0.25);
    row[exchange::CaloriesPosition] = calories;
    row.push_back(food);
    row.push_back("1 cup");
    return row;
}

ExchangeTest::Created ExchangeTest::Create(const json& recipe) {
    const auto reply = Post("/halvane/api/recipes", recipe);
    if (!reply || reply->status != 201) {
        ADD_FAILURE() << (reply ? reply->body : "no reply");
        return {};
    }
    const auto body = json::parse(reply->body);
    return {body["RecipeID"], body["token"]};
}

void ExchangeTest::Add(const Created& recipe, const json& rows) {
    const auto reply = Post("/halvane/api/recipes/" + std::to_string(recipe.id) + "/ingredients",
                            {{"fields", exchange::FieldNames()}, {"rows", rows}}, recipe.token);
    ASSERT_TRUE(reply);
    EXPECT_EQ(reply->status, 201) << reply->body;
}

int ExchangeTest::Send(const json& recipe, const json& rows) {
    const auto created = Create(recipe);
    if (!rows.empty())
        Add(created, rows);
    Text("/halvane/sendrecipe.asp?recID=" + std::to_string(created.id));
    return created.id;
}

void ExchangeTest::AwaitFreshHour() {
    using exchange::Moment::Hour;
    using exchange::Moment::Second;
    const auto left = Hour - exchange::Moment::Now() % Hour;
    if (left < 60 * Second)
        std::this_thread::sleep_for(std::chrono::microseconds(left));
}

std::string ExchangeTest::Cell(const std::string& sql) {
    std::string cell;
    exchange::Connection(Database()).First(sql, soci::into(cell));
    return cell;
}

long long ExchangeTest::Count(const std::string& sql) {
    long long count = -1;
    exchange::Connection(Database()).First(sql, soci::into(count));
    return count;
}
