#include "cli/json_writer.h"

#include <gtest/gtest.h>

#include <sstream>

namespace quillet::cli {
namespace {

using basic::Str;

TEST(JsonWriter, EscapesWhatJsonRequires) {
    EXPECT_EQ(JsonWriter::quoted(u"plain"), "\"plain\"");
    EXPECT_EQ(JsonWriter::quoted(u"a\"b\\c/d"), "\"a\\\"b\\\\c/d\"");
    EXPECT_EQ(JsonWriter::quoted(u"\r\n\t\b\f"), "\"\\r\\n\\t\\b\\f\"");
    EXPECT_EQ(JsonWriter::quoted(Str(u"x") + u'\0' + u"\x01\x1F\x7F"), "\"x\\u0000\\u0001\\u001F\\u007F\"");
    EXPECT_EQ(JsonWriter::quoted(u""), "\"\"");
}

TEST(JsonWriter, WritesUtf8AndKeepsLoneSurrogatesValid) {
    EXPECT_EQ(JsonWriter::quoted(u"caf\u00E9 \u20AC"), "\"caf\xC3\xA9 \xE2\x82\xAC\"");
    EXPECT_EQ(JsonWriter::quoted(u"\U0001F600"), "\"\xF0\x9F\x98\x80\"");
    EXPECT_EQ(JsonWriter::quoted(Str(1, char16_t(0xD800)) + u"x"), "\"\\uD800x\"");
    EXPECT_EQ(JsonWriter::quoted(Str(1, char16_t(0xDC00))), "\"\\uDC00\"");
}

TEST(JsonWriter, NestsObjectsAndArraysWithCommasAndIndentation) {
    std::ostringstream out;
    JsonWriter json(out);
    json.beginObject();
    json.key(u"name");
    json.value(u"x");
    json.key(u"list");
    json.beginArray();
    json.value(1LL);
    json.value(true);
    json.beginObject();
    json.endObject();
    json.beginArray();
    json.endArray();
    json.endArray();
    json.key(u"off");
    json.value(false);
    json.endObject();
    json.finish();
    EXPECT_EQ(out.str(),
              "{\n  \"name\": \"x\",\n  \"list\": [\n    1,\n    true,\n    {},\n    []\n  ],\n  \"off\": false\n}\n");
}

}  // namespace
}  // namespace quillet::cli
