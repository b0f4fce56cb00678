#pragma once

#include "document_previewer.h"
#include "file_follower.h"

#include <QMainWindow>

class PrintoutView;
class QComboBox;
class QLabel;

/*
 * The window that shows a document as it would be printed, and follows the document and the configuration as
 * they change on disk.
 */
class PreviewWindow : public QMainWindow
{
    Q_OBJECT

public:
    /* Shows the document, printed with the configuration file. */
    PreviewWindow(const QString &document, const QString &configuration, const PreviewChoice &choice);

    /* What is shown; while the document cannot be read that is what it was before. */
    const Preview &preview() const { return m_preview; }

    /* Shows another document. */
    void open(const QString &document);

    /* Writes what is shown to the file, in the format that its name ends in; tells when that fails. */
    bool saveAs(const QString &file);

    /* Reads everything again. */
    void refresh();

private:
    void createActions();
    void createChoices();
    void askForDocument();
    void askForFile();
    void updateStatus();

    QString m_document;
    QString m_configuration;
    PreviewChoice m_choice;
    DocumentPreviewer m_previewer;
    Preview m_preview;
    FileFollower m_follower;
    // Owned by the window.
    PrintoutView *m_view;
    QLabel *m_remarks;
    QLabel *m_status;
};
