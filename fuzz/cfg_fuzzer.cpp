/*
 * The "cfg" kind: reader, lookup, changes in place, both writers and the printed tree. The input is a
 * configuration file and a key to look up, which is also the value that settings are changed to.
 */
#include "config.h"
#include "fuzzing.h"
#include "temporary_home.h"
#include "text_changes.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;
using libconfig::Config;

namespace {

// All that the format cannot say: a section that holds nothing does not come back when it is read.
bool holdsEmptySection(const QByteArray &text)
{
    static const QRegularExpression emptySection(u"\\{\\n *\\};\\n"_s);
    return QString::fromLatin1(text).contains(emptySection);
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const TemporaryHome home;
    const FuzzInput input(data, size);
    const QString file = home.writeFile(u"tavolux.conf"_s, input.file);
    const QString key = QString::fromLatin1(input.companion);

    requireExactChanges(input.file, u"cfg"_s, key);

    const Config original(file, u"cfg"_s);
    original.printConfigTree();
    require(original.buildConfigXmlFile(home.filePath(u"tavolux.xml"_s)), "a tree is written as XML");
    require(original.buildConfigFile({}), "a tree is written over its own file");
    const QByteArray written = fileBytes(file);

    const Config readBack(file, u"cfg"_s);
    require(readBack.lookup(key) == original.lookup(key), "a value survives writing and reading");
    require(readBack.buildConfigFile({}), "a tree that was read back is written");
    if (!holdsEmptySection(written))
        require(fileBytes(file) == written, "writing what was written changes nothing");
    return 0;
}
