#include "document_previewer.h"

#include "interface_language.h"
#include "labels.h"
#include "make_driver.h"
#include "printer_driver.h"
#include "printer_settings.h"
#include "tx_configuration.h"

#include <QCoreApplication>
#include <QDir>

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView untranslated = "en"_L1;

/* Where the texts of this file are translated. */
struct PreviewRemarks
{
    Q_DECLARE_TR_FUNCTIONS(PreviewRemarks)
};

// Where the labels' translations may lie: where the configuration says, then where they are installed.
QStringList labelFolders(const TXConfiguration &configuration)
{
    QStringList folders = translationFolders();
    if (const QString basedir = configuration.getStrValue(u"tavolux.language.basedir"_s); !basedir.isEmpty())
        folders.prepend(basedir);
    return folders;
}

// Without one in the configuration, and for a name that is not known, it is the plain-text printer.
PrinterSettings chosenPrinter(const TXConfiguration &configuration, const QString &name)
{
    const QStringList configured = printerNames(configuration);
    const QString wanted = name.isEmpty() ? configured.value(0) : name;
    if (configured.contains(wanted))
        return printerOfName(configuration, wanted);
    const PrinterModel *const model = findPrinterModel(wanted);
    return PrinterSettings(model ? *model : plainTextModel());
}

} // namespace

QStringList Preview::remarks() const
{
    QStringList remarks;
    if (!reading.complete())
        remarks << PreviewRemarks::tr("Incomplete: line %1, column %2: %3")
                       .arg(reading.line)
                       .arg(reading.column)
                       .arg(reading.reason);
    if (!printout.logoFault.isEmpty())
        remarks << PreviewRemarks::tr("The logo is not printed: %1").arg(printout.logoFault);
    if (!printout.isKeptWhole())
        remarks << PreviewRemarks::tr("Only the first %1 of %2 lines are shown.")
                       .arg(shownNumber(static_cast<qlonglong>(printout.lines.size())),
                            shownNumber(printout.lineCount));
    return remarks;
}

DocumentPreviewer::DocumentPreviewer()
{
    QCoreApplication::installTranslator(&m_translator);
}

DocumentPreviewer::~DocumentPreviewer()
{
    QCoreApplication::removeTranslator(&m_translator);
}

Preview DocumentPreviewer::preview(QIODevice &document, const TXConfiguration &configuration,
                                   const PreviewChoice &choice)
{
    useLabels(configuration, choice.language);
    Preview preview;
    const std::unique_ptr<PrinterDriver> driver = makePreviewDriver(
        configuration, chosenPrinter(configuration, choice.printer), choice.columns, preview.printout);
    preview.reading = printDocument(document, *driver);
    return preview;
}

QStringList DocumentPreviewer::printers(const TXConfiguration &configuration)
{
    QStringList names = printerNames(configuration);
    for (const PrinterModel &model : printerModels)
        if (!names.contains(model.name))
            names << model.name;
    return names;
}

QStringList DocumentPreviewer::languages(const TXConfiguration &configuration)
{
    const QString prefix = u"tavolux_"_s;
    const QString suffix = u".qm"_s;
    QStringList languages;
    for (const QString &folder : labelFolders(configuration))
        for (const QString &file : QDir(folder).entryList({prefix + u'*' + suffix}, QDir::Files))
            languages << file.sliced(prefix.size(), file.size() - prefix.size() - suffix.size());
    languages.removeDuplicates();
    languages.sort();
    languages.prepend(untranslated);
    return languages;
}

void DocumentPreviewer::useLabels(const TXConfiguration &configuration,
                                  const std::optional<QString> &language)
{
    QTranslator &labels = m_translator.labels.emplace();
    if (!language) {
        (void)loadLabels(labels, configuration);
    } else if (*language != untranslated) {
        for (const QString &folder : labelFolders(configuration))
            if (labels.load("tavolux_"_L1 + *language, folder))
                break;
    }
}

QString DocumentPreviewer::LabelTranslator::translate(const char *context, const char *sourceText,
                                                      const char *disambiguation, int n) const
{
    return labels ? labels->translate(context, sourceText, disambiguation, n) : QString();
}
