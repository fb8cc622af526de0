#include "exchange/Template.h"

#include <gtest/gtest.h>

#include <stdexcept>

using exchange::Template;
using exchange::Values;

namespace {
Values With(std::string_view name, std::string text) {
    Values values;
    values.Set(name, std::move(text));
    return values;
}

Values::List Names(std::initializer_list<const char*> names) {
    Values::List list;
    for (const auto* name : names)
        list.push_back(With("name", name));
    return list;
}
} // namespace

TEST(TemplateTest, ATextIsEscaped) {
    const auto values = With("text", R"(<b title="a" lang='b'>&amp;</b>)");
    EXPECT_EQ(Template("[{{text}}]").Filled(values),
              "[&lt;b title=&quot;a&quot; lang=&apos;b&apos;&gt;&amp;amp;&lt;/b&gt;]");
}

TEST(TemplateTest, ATextIsNotReadAsATemplate) {
    EXPECT_EQ(Template("{{text}}").Filled(With("text", "{{text}}{{{text}}}")),
              "{{text}}{{{text}}}");
}

TEST(TemplateTest, ATextIsNeverWrittenUnescaped) {
    EXPECT_EQ(Template("[{{{text}}}]").Filled(With("text", "<script>")), "[]");
}

TEST(TemplateTest, ANameWithoutAValueIsAnEmptyText) {
    EXPECT_EQ(Template("[{{text}}{{{part}}}{{#list}}x{{/list}}]").Filled({}), "[]");
}

TEST(TemplateTest, AnotherTemplateIsFilledWithItsOwnValues) {
    const Template inner("<i>{{text}}{{title}}</i>");
    auto values = With("title", "outer");
    values.Insert("part", inner, With("text", "<"));
    EXPECT_EQ(Template("{{title}}: {{{part}}}").Filled(values), "outer: <i>&lt;</i>");
}

TEST(TemplateTest, ASectionIsWrittenForTruthAndForATextThatIsNotEmpty) {
    const Template section("{{#it}}yes{{/it}}{{^it}}no{{/it}}");
    for (const bool shown : {true, false}) {
        Values values;
        values.Show("it", shown);
        EXPECT_EQ(section.Filled(values), shown ? "yes" : "no");
    }
    EXPECT_EQ(section.Filled(With("it", "a")), "yes");
    EXPECT_EQ(section.Filled(With("it", "")), "no");
    EXPECT_EQ(section.Filled({}), "no");
}

TEST(TemplateTest, ASectionIsWrittenForEachEntryOfAList) {
    const Template section("{{#list}}{{name}};{{/list}}{{^list}}none{{/list}}");
    Values values;
    values.Each("list", Names({"a", "b"}));
    EXPECT_EQ(section.Filled(values), "a;b;");
    Values none;
    none.Each("list", {});
    EXPECT_EQ(section.Filled(none), "none");
}

TEST(TemplateTest, AnEntrySeesTheValuesAroundItsListBehindItsOwn) {
    auto values = With("name", "outer");
    values.Set("unit", "g");
    auto list = Names({"a", ""});
    list.emplace_back();
    values.Each("list", std::move(list));
    EXPECT_EQ(Template("{{#list}}{{name}} {{unit}};{{/list}}").Filled(values), "a g; g;outer g;");
}

TEST(TemplateTest, SectionsCanBeNested) {
    auto values = With("a", "1");
    values.Set("b", "2");
    EXPECT_EQ(Template("{{#a}}<{{#b}}{{a}}{{b}}{{/b}}{{^c}}!{{/c}}>{{/a}}").Filled(values),
              "<12!>");
}

TEST(TemplateTest, ALineWithOnlyASectionTagIsNotWritten) {
    const auto values = With("a", "x");
    EXPECT_EQ(Template("{{#a}}\n<p>\n{{a}}\n{{/a}}\nend\n").Filled(values), "<p>\nx\nend\n");
    EXPECT_EQ(Template("<p>{{#a}}\n{{/a}}</p>").Filled(values), "<p>\n</p>");
}

TEST(TemplateTest, ATemplateWithoutTheEndOfATagOrASectionIsRefused) {
    for (const auto* text :
         {"{{a", "{{{a}}", "{{}}", "{{#a}}", "{{#a}}{{/b}}", "{{/a}}", "{{#a}}{{#b}}{{/a}}{{/b}}"})
        EXPECT_THROW(Template{text}, std::logic_error) << text;
}
