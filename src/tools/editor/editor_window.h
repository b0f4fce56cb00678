#pragma once

#include "configuration_file.h"
#include "shown_tree.h"
#include "tree_filter.h"

#include <QMainWindow>

#include <optional>

class Dialogs;
class QAction;
class QLabel;
class QLineEdit;
class QTreeWidget;
class QTreeWidgetItem;
class PreviewPane;

/*
 * The window of the configuration editor: the store's tree view with a find field above it. It holds no
 * knowledge about configurations beyond what it asks the file, and asks before anything gets lost.
 */
class EditorWindow : public QMainWindow
{
    Q_OBJECT

public:
    /* An empty window for the file of the kind "cfg" or "xml"; open() fills it. */
    EditorWindow(const QString &path, const QString &type, Dialogs &dialogs);
    ~EditorWindow() override;

    /* Reads the file in place of what is shown, and tells when that cannot be done. */
    void open();

    /* Writes what is shown over the file, if it was changed; a value that is being typed counts. False when
     * the person cancelled or the file could not be written: then the changes stay unsaved. */
    bool save();

    /* Reads the file again, after a question when there are changes. */
    void reload();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void createActions();
    void showTree();
    void commitTypedValue();
    void updateModified();
    bool mayLoseChanges();

    void activate(QTreeWidgetItem *item);
    void find(const QString &text);
    void endFind();

    ConfigurationFile m_file;
    Dialogs &m_dialogs;
    libconfig::Section m_unchanged;
    QLineEdit *m_findField; // owned by the window, like the two below
    QLabel *m_keyLabel;
    PreviewPane *m_preview;
    std::unique_ptr<QTreeWidget> m_view;
    std::optional<TreeFilter> m_filter;
};
