#pragma once

#include "document_previewer.h"

#include <QDockWidget>

#include <vector>

class ConfigurationDocument;
class PrintoutView;
class QComboBox;
class QLabel;
class TXConfiguration;

/*
 * Shows a document printed with the configuration as it stands, saved or not. The document is of the kind
 * that the current profile belongs to; the lines that the current setting touches are marked.
 */
class PreviewPane : public QDockWidget
{
    Q_OBJECT

public:
    /* Follows the document, which outlives the pane. */
    explicit PreviewPane(const ConfigurationDocument &document);

    /* Follows a person to the section or setting of this dotted key. */
    void followKey(const QString &key);

    /* Shows this document for the current profile from now on, a file of the person's own. */
    void chooseDocument(const QString &file);

protected:
    void showEvent(QShowEvent *event) override;

private:
    void refresh();
    void followProfile();
    void askForDocument();
    Preview printed(QByteArray document, const TXConfiguration &configuration);
    std::vector<bool> touchedLines(const Printout &printout, const QByteArray &document);

    const ConfigurationDocument &m_document;
    QString m_key; // of the section or setting where the person is
    QString m_profile; // the section that the documents are of
    DocumentPreviewer m_previewer;
    // Owned by the pane.
    QComboBox *m_documents;
    QLabel *m_remarks;
    PrintoutView *m_view;
};
