#pragma once

#include "print_document.h"
#include "printout.h"

#include <QStringList>
#include <QTranslator>

#include <optional>

class QIODevice;
class TXConfiguration;

/* What a preview may have otherwise than the configuration says. */
struct PreviewChoice
{
    QString printer; // of a section of the configuration, or a model; empty is the first of the configuration
    int columns = 0; // of the paper; 0 is as many as the printer has
    std::optional<QString> language; // of the labels, such as "de", or "en" for those without translation

    bool operator==(const PreviewChoice &) const = default;
};

/* A document as it would be printed, and how its reading ended. */
struct Preview
{
    Printout printout;
    Reading reading;

    bool isWhole() const { return reading.complete() && printout.isKeptWhole(); }

    /* What is not as it should be, one plain sentence each. */
    QStringList remarks() const;
};

/*
 * Prints documents on a paper that is kept, with the drivers that print them. It puts the translation of the
 * labels in place, for which there may be one previewer at a time, in the thread of the application object.
 */
class DocumentPreviewer
{
public:
    DocumentPreviewer();
    ~DocumentPreviewer();
    DocumentPreviewer(const DocumentPreviewer &) = delete;
    DocumentPreviewer &operator=(const DocumentPreviewer &) = delete;

    /* Prints the document. A language without translation leaves the labels as they are. */
    Preview preview(QIODevice &document, const TXConfiguration &configuration,
                    const PreviewChoice &choice = {});

    /* The names of printers that can be chosen: those of the configuration, then the models. */
    static QStringList printers(const TXConfiguration &configuration);

    /* The languages that labels can be had in, "en" first. */
    static QStringList languages(const TXConfiguration &configuration);

private:
    /* Hands on to another translator, which can be replaced without the widgets being told of a new language.
     */
    class LabelTranslator : public QTranslator
    {
    public:
        bool isEmpty() const override { return false; }
        QString translate(const char *context, const char *sourceText, const char *disambiguation,
                          int n) const override;

        std::optional<QTranslator> labels;
    };

    void useLabels(const TXConfiguration &configuration, const std::optional<QString> &language);

    LabelTranslator m_translator;
};
