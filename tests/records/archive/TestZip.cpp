#include "records/archive/TestZip.h"

#include <zip.h>

#include <gtest/gtest.h>

namespace {
void Add(zip* archive, const QByteArray& name, const QByteArray& content) {
    if (name.endsWith('/')) {
        EXPECT_GE(zip_dir_add(archive, name.constData(), ZIP_FL_ENC_UTF_8), 0);
        return;
    }
    zip_source_t* const source = zip_source_buffer(archive, content.constData(),
                                                   static_cast<zip_uint64_t>(content.size()), 0);
    EXPECT_GE(zip_file_add(archive, name.constData(), source, ZIP_FL_ENC_UTF_8), 0);
}

QByteArray Content(zip_source_t* source) {
    zip_stat_t facts;
    zip_source_stat(source, &facts);
    QByteArray content(static_cast<qsizetype>(facts.size), '\0');
    zip_source_open(source);
    zip_source_read(source, content.data(), facts.size);
    zip_source_close(source);
    return content;
}
} // namespace

QByteArray TestZip(const QList<std::pair<QByteArray, QByteArray>>& members) {
    zip_source_t* const target = zip_source_buffer_create(nullptr, 0, 0, nullptr);
    zip_source_keep(target);
    zip* const archive = zip_open_from_source(target, ZIP_TRUNCATE, nullptr);
    for (const auto& [name, content] : members)
        Add(archive, name, content);
    EXPECT_EQ(zip_close(archive), 0);
    const QByteArray content = Content(target);
    zip_source_free(target);
    return content;
}
