#pragma once

#include "document_previewer.h"

#include <QDockWidget>

#include <vector>

class PrintoutView;
class QComboBox;
class QLabel;
class QTreeWidget;

/*
 * Shows a document printed with the configuration as a tree view shows it, saved or not. The document is of
 * the kind that the current item's profile belongs to; the lines that the current setting touches are marked.
 */
class PreviewPane : public QDockWidget
{
    Q_OBJECT

public:
    PreviewPane();

    /* Follows this view of a configuration of the kind "cfg" or "xml", instead of the one before. */
    void setTree(const QTreeWidget *tree, const QString &type);

    /* Prints again what is shown, if anybody sees it. To be called when a value or the current item changed.
     */
    void refresh();

    /* Shows this document for the current profile from now on, a file of the person's own. */
    void chooseDocument(const QString &file);

protected:
    void showEvent(QShowEvent *event) override;

private:
    void followProfile();
    void askForDocument();
    std::vector<bool> touchedLines(const Printout &printout, const QByteArray &document);

    const QTreeWidget *m_tree = nullptr;
    QString m_type;
    QString m_profile; // the section that the documents are of
    DocumentPreviewer m_previewer;
    // Owned by the pane.
    QComboBox *m_documents;
    QLabel *m_remarks;
    PrintoutView *m_view;
};
