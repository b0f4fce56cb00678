#include "config.h"
#include "temporary_home.h"

#include <QTest>

using namespace Qt::StringLiterals;

class ConfigTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void unknownKindLoadsNothing()
    {
        const TemporaryHome home;
        const QString file = home.writeFile(u"tavolux.conf"_s, "s : { k = v; };");
        QCOMPARE(libconfig::Config(file, u"ini"_s).lookup(u"s.k"_s), QString());
        QCOMPARE(libconfig::Config(file, u"cfg"_s).lookup(u"s.k"_s), u"v"_s);
    }
};

QTEST_GUILESS_MAIN(ConfigTest)
#include "config_test.moc"
