#pragma once

#include <QLatin1StringView>
#include <QList>
#include <QString>

#include <span>

/* A choice of an option: its value, and what people read. */
struct OptionChoice
{
    QString value;
    QString title;
};

/* An option that a queue has for its jobs. */
struct QueueOption
{
    QLatin1StringView name; // whatever its case
    QLatin1StringView title; // for people
    QLatin1StringView setting; // of a printer's section, which it is for; empty for none
    QList<OptionChoice> (*choices)(); // besides "as configured"
};

// In the order in which they are shown.
extern const std::span<const QueueOption> queueOptions;

/* The one that is no setting of a printer: the language of the labels. */
const QueueOption &languageOption();

/* The choice of every option that leaves it to the configuration, and the language that needs no translation.
 */
inline constexpr QLatin1StringView asConfigured{"Configured"};
inline constexpr QLatin1StringView untranslated{"en"};
