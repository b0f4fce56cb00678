#include "labels.h"

#include "tx_configuration.h"

#include <QLocale>
#include <QTranslator>

using namespace Qt::StringLiterals;

bool loadLabels(QTranslator &translator, const TXConfiguration &configuration)
{
    const QString basedir = configuration.getStrValue(u"tavolux.language.basedir"_s);
    const QString file = configuration.getStrValue(u"tavolux.language.file"_s);
    if (file == "/"_L1)
        return translator.load(basedir + "/tavolux_"_L1 + QLocale::system().name(), u"."_s);
    return translator.load(basedir + file);
}

bool loadLabelsOf(QTranslator &translator, const TXConfiguration &configuration, const QString &language)
{
    const QString file = "tavolux_"_L1 + language;
    const QString basedir = configuration.getStrValue(u"tavolux.language.basedir"_s);
    return (!basedir.isEmpty() && translator.load(file, basedir))
        || translator.load(file, QStringLiteral(TAVOLUX_TRANSLATIONS_DIR));
}
