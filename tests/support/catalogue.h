#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QMap>
#include <QTranslator>

/* Translations that hold as long as the object lives, as if loaded from a translation file. */
class Catalogue : public QTranslator
{
public:
    explicit Catalogue(const QMap<QByteArray, QString> &texts)
        : translations(texts)
    {
        QCoreApplication::installTranslator(this);
    }

    bool isEmpty() const override { return translations.isEmpty(); }

    QString translate(const char *context, const char *sourceText, const char *, int) const override
    {
        return QByteArrayView(context) == "QObject" ? translations.value(sourceText) : QString();
    }

private:
    const QMap<QByteArray, QString> translations;
};
