#include "interface_language.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

#include <algorithm>

using namespace Qt::StringLiterals;

QStringList translationFolders()
{
    return {QCoreApplication::applicationDirPath() + "/../share/tavolux-printer/translations"_L1,
            QStringLiteral(TAVOLUX_TRANSLATIONS_DIR)};
}

bool loadInterface(QTranslator &translator, const QStringList &folders)
{
    return std::ranges::any_of(folders, [&translator](const QString &folder) {
        return translator.load(QLocale(), u"tavolux-windows"_s, u"_"_s, folder);
    });
}

QString shownNumber(qlonglong number)
{
    QLocale locale;
    // Where no language is set, some versions of the toolkit have others.
    locale.setNumberOptions(QLocale::DefaultNumberOptions);
    return locale.toString(number);
}
