#include "tx_configuration.h"

#include "file_name.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace {

QString throughLatin1(const QString &text)
{
    return QString::fromLatin1(text.toLatin1());
}

} // namespace

TXConfiguration::TXConfiguration()
{
    readFile(userFile(), u"cfg"_s);
}

TXConfiguration::TXConfiguration(const QString &file, const QString &type)
    : Config(file, type)
{
}

QString TXConfiguration::userFile()
{
    const QByteArray home = qgetenv("HOME");
    // The toolkit's notion of a home directory, but for a name that it would not decode without loss.
    const QString folder = home.isValidUtf8() ? QDir::homePath() : QDir::cleanPath(fileNameFromBytes(home));
    return folder + "/.tavolux/conf/tavolux.conf"_L1;
}

QString TXConfiguration::getStrValue(const QString &key) const
{
    return throughLatin1(lookup(throughLatin1(key)));
}
