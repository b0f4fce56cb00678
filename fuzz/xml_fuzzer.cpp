/*
 * The "xml" kind: reader, lookup, changes in place, both writers and the printed tree. The input is a
 * configuration file and a key to look up, which is also the value that settings are changed to.
 */
#include "config.h"
#include "fuzzing.h"
#include "temporary_home.h"
#include "text_changes.h"

using namespace Qt::StringLiterals;
using libconfig::Config;

namespace {

// Values are written without references, and what is no element as an element without a name: quotes and
// special characters, texts, comments and declarations do not come back.
bool comesBack(const QByteArray &read, const QByteArray &written)
{
    return !read.contains('&') && !read.contains('\'') && !written.contains("<>");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const TemporaryHome home;
    const FuzzInput input(data, size);
    const QString file = home.writeFile(u"tavolux.xml"_s, input.file);
    const QString key = QString::fromUtf8(input.companion);

    requireExactChanges(input.file, u"xml"_s, key);

    const Config original(file, u"xml"_s);
    original.printConfigTree();
    require(original.buildConfigFile(home.filePath(u"tavolux.conf"_s)), "a tree is written as \"cfg\" text");
    require(original.buildConfigXmlFile({}), "a tree is written over its own file");
    const QByteArray written = fileBytes(file);

    const Config readBack(file, u"xml"_s);
    const QString value = readBack.lookup(key);
    require(readBack.buildConfigXmlFile({}), "a tree that was read back is written");
    if (comesBack(input.file, written)) {
        require(value == original.lookup(key), "a value survives writing and reading");
        require(fileBytes(file) == written, "writing what was written changes nothing");
    }
    return 0;
}
