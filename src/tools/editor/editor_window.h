#pragma once

#include "configuration_document.h"
#include "sections_model.h"
#include "setting_search.h"
#include "settings_model.h"

#include <QMainWindow>

#include <memory>

class Dialogs;
class FindingsPane;
class HelpWindow;
class PreviewPane;
class QAction;
class QLabel;
class QLineEdit;
class QMenu;
class QSplitter;
class QTreeView;

/*
 * The window of the configuration editor: sections by their meaning, the settings of one of them, what was
 * found wrong, and a preview. It asks before anything gets lost.
 */
class EditorWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit EditorWindow(Dialogs &dialogs);
    ~EditorWindow() override;

    /* Opens a file of the kind "cfg" or "xml", by its content unless given, in place of what is shown, and
     * tells when that cannot be done. Offers a configuration to start from where there is none. */
    void open(const QString &path, const QString &kind = {});

    /* Writes the configuration, if it was changed; a value that is being typed counts. False when the person
     * cancelled or the file could not be written: then the changes stay unsaved. */
    bool save();

    /* Reads the file again, after a question when there are changes. */
    void reload();

protected:
    void closeEvent(QCloseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void createViews();
    void createFileMenu();
    void createEditMenu();
    void createOtherMenus();
    void restoreLayout();

    void askForNew();
    void askForFile();
    bool saveAs();
    bool saveTo(const QString &path);
    void openInPlace(const QString &path);
    void read(const QString &path, const QString &kind);
    void begin(const QString &missingFile);
    bool mayLoseChanges();
    void commitTypedValue();
    void noteRecent(const QString &path);
    void updateRecentMenu();

    void followText();
    void followModified();
    void showSection(int number);
    void followCurrent();
    void updateRemark(const QString &typed = {});
    int currentSection() const;
    const ShownSetting *currentSetting() const;
    QString currentKey() const;
    void goTo(Place place);
    void goToEntry(int entry);
    void goToFinding(const Finding &finding);
    void stepBack();
    void stepForward();

    void editValue(const QModelIndex &index);
    void removeSetting();
    void removeSection();
    void addSetting();
    void addPrinter();
    void copySettings();
    void copyKey();
    bool apply(const libconfig::TextChange &change, const QString &name);

    void find(const QString &words);
    void findNext(int step);
    void endFind();
    void showHelp();
    void showAbout();

    Dialogs &m_dialogs;
    ConfigurationDocument m_document;
    SectionsModel m_sections;
    SettingsModel m_settings;
    QString m_kind; // as the person gave it
    QString m_shownKey; // of the section that is shown, and whether it is not the first of its name
    bool m_shownIsRepeated = false;
    std::vector<Place> m_found;
    qsizetype m_foundNumber = 0;
    std::unique_ptr<HelpWindow> m_help;

    // Owned by the window.
    QSplitter *m_splitter;
    QTreeView *m_sectionsView;
    QTreeView *m_settingsView;
    QLabel *m_explanation;
    QLabel *m_remark;
    QLabel *m_keyLabel;
    QLineEdit *m_findField;
    QLabel *m_findCount;
    FindingsPane *m_findings;
    PreviewPane *m_preview;
    QMenu *m_recentMenu = nullptr;
    QAction *m_undo = nullptr;
    QAction *m_redo = nullptr;
    QAction *m_editValue = nullptr;
    QAction *m_reset = nullptr;
    QAction *m_removeSetting = nullptr;
    QAction *m_removeSection = nullptr;
    QAction *m_addSetting = nullptr;
    QAction *m_copySettings = nullptr;
    QAction *m_copyKey = nullptr;
};
