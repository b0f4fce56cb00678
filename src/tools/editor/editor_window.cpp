#include "editor_window.h"

#include "dialogs.h"
#include "file_name.h"
#include "findings_pane.h"
#include "help_window.h"
#include "preview_pane.h"
#include "printer_dialog.h"
#include "printer_settings.h"
#include "read_file.h"
#include "starter_dialog.h"
#include "value_delegate.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QDir>
#include <QFileInfo>
#include <QHeaderView>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QMimeData>
#include <QScreen>
#include <QSettings>
#include <QShortcut>
#include <QSplitter>
#include <QStatusBar>
#include <QToolButton>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>
#include <iostream>

using namespace Qt::StringLiterals;
using libconfig::ConfigurationText;
using libconfig::TextChange;

namespace {

constexpr int messageMilliseconds = 4000;
constexpr qsizetype mostRecentFiles = 8;

QTreeView *newTable(const QString &name)
{
    auto *view = new QTreeView;
    view->setObjectName(name);
    view->setUniformRowHeights(true);
    view->setContextMenuPolicy(Qt::ActionsContextMenu);
    return view;
}

} // namespace

EditorWindow::EditorWindow(Dialogs &dialogs)
    : m_dialogs(dialogs)
    , m_sections(m_document)
    , m_settings(m_document)
    , m_splitter(new QSplitter)
    , m_sectionsView(newTable(u"sections"_s))
    , m_settingsView(newTable(u"settings"_s))
    , m_explanation(new QLabel)
    , m_remark(new QLabel)
    , m_keyLabel(new QLabel)
    , m_findField(new QLineEdit)
    , m_findCount(new QLabel)
    , m_findings(new FindingsPane(m_document))
    , m_preview(new PreviewPane(m_document))
{
    resize(QSize(1060, 660).boundedTo(screen()->availableSize()));
    setAcceptDrops(true);
    createViews();
    createFileMenu();
    createEditMenu();
    createOtherMenus();
    setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea);
    addDockWidget(Qt::RightDockWidgetArea, m_preview);
    addDockWidget(Qt::BottomDockWidgetArea, m_findings);
    resizeDocks({m_findings}, {90}, Qt::Vertical);
    resizeDocks({m_preview}, {380}, Qt::Horizontal);
    restoreLayout();

    connect(&m_document, &ConfigurationDocument::changed, this, &EditorWindow::followText);
    connect(&m_document, &ConfigurationDocument::modifiedChanged, this, &EditorWindow::followModified);
    connect(&m_document, &ConfigurationDocument::findingsChanged, this, [this] { updateRemark(); });
    connect(m_findings, &FindingsPane::activated, this, &EditorWindow::goToFinding);
    followText();
    followModified();
}

EditorWindow::~EditorWindow() = default;

void EditorWindow::createViews()
{
    auto *findLabel = new QLabel(tr("Fi&nd:"));
    findLabel->setBuddy(m_findField);
    m_findField->setObjectName(u"find"_s);
    m_findField->setClearButtonEnabled(true);
    m_findField->setPlaceholderText(tr("key, value or words of an explanation"));
    m_findCount->setObjectName(u"findCount"_s);
    connect(m_findField, &QLineEdit::textChanged, this, &EditorWindow::find);
    connect(m_findField, &QLineEdit::returnPressed, this, [this] { m_settingsView->setFocus(); });
    auto *escape = new QShortcut(Qt::Key_Escape, m_findField);
    escape->setContext(Qt::WidgetShortcut);
    connect(escape, &QShortcut::activated, this, &EditorWindow::endFind);

    m_sectionsView->setModel(&m_sections);
    m_sectionsView->setHeaderHidden(true);
    m_sectionsView->setRootIsDecorated(false);
    m_sectionsView->setItemsExpandable(false);
    m_sectionsView->setIndentation(14);
    m_sectionsView->setMinimumWidth(150);
    m_sectionsView->setAccessibleName(tr("Sections"));
    connect(m_sectionsView->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex &index) {
                if (const ShownSection *section = m_sections.sectionAt(index))
                    showSection(static_cast<int>(section - m_sections.sections().data()));
            });

    m_settingsView->setModel(&m_settings);
    auto *delegate = new ValueDelegate(m_settings, m_dialogs, this);
    m_settingsView->setItemDelegate(delegate);
    m_settingsView->setRootIsDecorated(false);
    m_settingsView->setAlternatingRowColors(true);
    m_settingsView->setAllColumnsShowFocus(true);
    m_settingsView->setEditTriggers(QTreeView::DoubleClicked | QTreeView::EditKeyPressed
                                    | QTreeView::AnyKeyPressed);
    m_settingsView->setAccessibleName(tr("Settings"));
    m_settingsView->header()->setStretchLastSection(false);
    m_settingsView->header()->setSectionResizeMode(SettingsModel::valueColumn, QHeaderView::Stretch);
    m_settingsView->header()->resizeSection(SettingsModel::nameColumn, 170);
    m_settingsView->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_settingsView->setMinimumWidth(300); // at the cost of the preview
    connect(m_settingsView, &QTreeView::activated, this, &EditorWindow::editValue);
    connect(m_settingsView->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &EditorWindow::followCurrent);
    connect(delegate, &ValueDelegate::typed, this, &EditorWindow::updateRemark);
    connect(delegate, &ValueDelegate::closeEditor, this, [this] { updateRemark(); });
    connect(&m_settings, &SettingsModel::refused, this,
            [this](const QString &reason) { statusBar()->showMessage(reason, 2 * messageMilliseconds); });

    m_explanation->setObjectName(u"explanation"_s);
    m_remark->setObjectName(u"remark"_s);
    for (QLabel *label : {m_explanation, m_remark}) {
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
        label->setTextInteractionFlags(Qt::TextSelectableByMouse);
        label->setMargin(2);
    }
    // Room for two lines, so that the table keeps its height from one setting to the next.
    m_explanation->setAlignment(Qt::AlignTop);
    m_explanation->setMinimumHeight(2 * fontMetrics().lineSpacing() + 4);
    m_remark->setBackgroundRole(QPalette::ToolTipBase);
    m_remark->setForegroundRole(QPalette::ToolTipText);
    m_remark->setAutoFillBackground(true);

    auto *findRow = new QHBoxLayout;
    findRow->addWidget(findLabel);
    findRow->addWidget(m_findField);
    findRow->addWidget(m_findCount);
    auto *settingRows = new QVBoxLayout;
    settingRows->setContentsMargins({});
    settingRows->addWidget(m_settingsView, 1);
    settingRows->addWidget(m_explanation);
    settingRows->addWidget(m_remark);
    auto *settingsSide = new QWidget;
    settingsSide->setLayout(settingRows);
    m_splitter->addWidget(m_sectionsView);
    m_splitter->addWidget(settingsSide);
    m_splitter->setStretchFactor(1, 1);
    m_splitter->setChildrenCollapsible(false);
    m_splitter->setSizes({200, 420});
    auto *rows = new QVBoxLayout;
    rows->addLayout(findRow);
    rows->addWidget(m_splitter, 1);
    setCentralWidget(new QWidget);
    centralWidget()->setLayout(rows);

    m_keyLabel->setObjectName(u"key"_s);
    m_keyLabel->setTextInteractionFlags(Qt::TextSelectableByMouse);
    statusBar()->addWidget(m_keyLabel);
}

void EditorWindow::createFileMenu()
{
    QMenu *menu = menuBar()->addMenu(tr("&File"));
    menu->addAction(tr("&New…"), QKeySequence::New, this, &EditorWindow::askForNew);
    menu->addAction(tr("&Open…"), QKeySequence::Open, this, &EditorWindow::askForFile);
    m_recentMenu = menu->addMenu(tr("Open &Recent"));
    connect(menu, &QMenu::aboutToShow, this, &EditorWindow::updateRecentMenu);
    menu->addAction(tr("R&eload"), QKeySequence(Qt::Key_F5), this, &EditorWindow::reload);
    menu->addSeparator();
    menu->addAction(tr("&Save"), QKeySequence::Save, this, &EditorWindow::save);
    menu->addAction(tr("Save &As…"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S), this,
                    &EditorWindow::saveAs);
    menu->addSeparator();
    menu->addAction(tr("&Quit"), QKeySequence(Qt::CTRL | Qt::Key_Q), this, &EditorWindow::close);
}

void EditorWindow::createEditMenu()
{
    QMenu *menu = menuBar()->addMenu(tr("&Edit"));
    m_undo = menu->addAction(tr("&Undo"), QKeySequence::Undo, this, &EditorWindow::stepBack);
    m_redo = menu->addAction(tr("&Redo"), this, &EditorWindow::stepForward);
    m_redo->setShortcuts({Qt::CTRL | Qt::SHIFT | Qt::Key_Z, Qt::CTRL | Qt::Key_Y}); // on every desktop
    QUndoStack &steps = m_document.undoStack();
    const auto followSteps = [this, &steps] {
        m_undo->setEnabled(steps.canUndo());
        m_undo->setText(steps.canUndo() ? tr("&Undo: %1").arg(steps.undoText()) : tr("&Undo"));
        m_redo->setEnabled(steps.canRedo());
        m_redo->setText(steps.canRedo() ? tr("&Redo: %1").arg(steps.redoText()) : tr("&Redo"));
    };
    connect(&steps, &QUndoStack::indexChanged, this, followSteps);
    followSteps();
    menu->addSeparator();
    m_editValue =
        menu->addAction(tr("&Edit Value"), this, [this] { editValue(m_settingsView->currentIndex()); });
    m_editValue->setShortcut(Qt::Key_F2);
    m_reset = menu->addAction(tr("Set Back to &Default"), this, &EditorWindow::removeSetting);
    m_reset->setShortcut(Qt::CTRL | Qt::Key_D);
    m_copyKey = menu->addAction(tr("Copy &Key"), this, &EditorWindow::copyKey);
    m_copyKey->setShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_C);
    menu->addSeparator();
    m_addSetting = menu->addAction(tr("Add &Setting…"), this, &EditorWindow::addSetting);
    m_removeSetting = menu->addAction(tr("Remove Se&tting"), this, &EditorWindow::removeSetting);
    m_removeSetting->setShortcut(Qt::Key_Delete);
    m_removeSetting->setShortcutContext(Qt::WidgetShortcut);
    menu->addSeparator();
    QAction *const addPrinter = menu->addAction(tr("Add &Printer…"), this, &EditorWindow::addPrinter);
    m_copySettings = menu->addAction(tr("&Copy Settings to…"), this, &EditorWindow::copySettings);
    m_removeSection = menu->addAction(tr("Re&move Section"), this, &EditorWindow::removeSection);
    menu->addSeparator();
    menu->addAction(tr("&Find"), QKeySequence::Find, this, [this] {
        m_findField->setFocus(Qt::ShortcutFocusReason);
        m_findField->selectAll();
    });
    menu->addAction(tr("Find &Next"), QKeySequence(Qt::Key_F3), this, [this] { findNext(1); });
    menu->addAction(tr("Find Pre&vious"), QKeySequence(Qt::SHIFT | Qt::Key_F3), this,
                    [this] { findNext(-1); });
    m_settingsView->addActions({m_editValue, m_reset, m_copyKey, m_addSetting, m_removeSetting});
    m_sectionsView->addActions({addPrinter, m_copySettings, m_removeSection, m_addSetting});
}

void EditorWindow::createOtherMenus()
{
    QMenu *view = menuBar()->addMenu(tr("&View"));
    view->addAction(m_preview->toggleViewAction());
    view->addAction(m_findings->toggleViewAction());
    QMenu *help = menuBar()->addMenu(tr("&Help"));
    help->addAction(tr("&Contents"), QKeySequence::HelpContents, this, &EditorWindow::showHelp);
    help->addAction(tr("&About"), this, &EditorWindow::showAbout);
}

void EditorWindow::restoreLayout()
{
    const QSettings settings;
    restoreGeometry(settings.value(u"window/geometry"_s).toByteArray());
    restoreState(settings.value(u"window/state"_s).toByteArray());
    m_splitter->restoreState(settings.value(u"window/sections"_s).toByteArray());
}

void EditorWindow::open(const QString &path, const QString &kind)
{
    if (readRegularFile(path).isMissing)
        begin(path);
    else
        read(path, kind);
}

void EditorWindow::read(const QString &path, const QString &kind)
{
    QString reason = m_document.open(path, kind);
    if (!reason.isEmpty()) {
        reason.front() = reason.front().toUpper();
        m_dialogs.tell(tr("Cannot read %1").arg(path), {reason + u'.'});
        return;
    }
    m_kind = kind;
    noteRecent(path);
    m_settingsView->setFocus();
}

void EditorWindow::begin(const QString &missingFile)
{
    StarterDialog dialog(missingFile, this);
    if (dialog.exec() == QDialog::Accepted)
        m_document.begin(missingFile, dialog.configuration());
    m_settingsView->setFocus();
}

void EditorWindow::askForNew()
{
    if (mayLoseChanges())
        begin({});
}

void EditorWindow::askForFile()
{
    const QString path = m_dialogs.chooseConfiguration(m_document.path());
    if (!path.isEmpty())
        openInPlace(path);
}

void EditorWindow::openInPlace(const QString &path)
{
    if (mayLoseChanges())
        open(path);
}

void EditorWindow::reload()
{
    if (mayLoseChanges() && !m_document.path().isEmpty())
        read(m_document.path(), m_kind);
}

bool EditorWindow::save()
{
    commitTypedValue();
    if (m_document.path().isEmpty())
        return saveAs();
    if (!m_document.isModified()) {
        statusBar()->showMessage(tr("There is no change to save."), messageMilliseconds);
        return true;
    }
    if (m_document.changedOnDisk()
        && m_dialogs.ask(tr("%1 was changed by another program. Save over it?").arg(m_document.path()), {},
                         QMessageBox::Save | QMessageBox::Cancel)
            != QMessageBox::Save)
        return false;
    return saveTo(m_document.path());
}

bool EditorWindow::saveAs()
{
    commitTypedValue();
    const QString path = m_dialogs.chooseNameToSave(m_document.path());
    return !path.isEmpty() && saveTo(path);
}

bool EditorWindow::saveTo(const QString &path)
{
    if (const QStringList findings = m_document.newFindings(); !findings.isEmpty()
        && m_dialogs.ask(tr("Something is wrong with the changes. Save all the same?"), findings,
                         QMessageBox::Save | QMessageBox::Cancel)
            != QMessageBox::Save)
        return false;
    const WriteResult written = m_document.save(path);
    if (!written) {
        m_dialogs.tell(tr("Cannot write %1").arg(path),
                       {written.fault + u'.', tr("The changes are still in this window.")});
        return false;
    }
    if (!written.remark.isEmpty())
        std::cerr << shownFileName(QApplication::applicationName() + ": "_L1 + path + " is written, but "_L1
                                   + written.remark)
                         .constData()
                  << std::endl;
    noteRecent(path);
    statusBar()->showMessage(written.remark.isEmpty() ? tr("Saved.")
                                                      : tr("Saved, but %1.").arg(written.remark),
                             messageMilliseconds);
    return true;
}

// A value is still being typed when a shortcut is pressed in its field; leaving the field takes it over.
void EditorWindow::commitTypedValue()
{
    if (m_settingsView->isAncestorOf(QApplication::focusWidget()))
        m_settingsView->setFocus();
}

bool EditorWindow::mayLoseChanges()
{
    commitTypedValue();
    if (!m_document.isModified())
        return true;
    const QMessageBox::StandardButton answer =
        m_dialogs.ask(m_document.path().isEmpty()
                          ? tr("The new configuration is not saved. Save it?")
                          : tr("The changes in %1 are not saved. Save them?").arg(m_document.path()),
                      {}, QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
    return answer == QMessageBox::Discard || (answer == QMessageBox::Save && save());
}

void EditorWindow::closeEvent(QCloseEvent *event)
{
    event->setAccepted(mayLoseChanges());
    if (!event->isAccepted())
        return;
    QSettings settings;
    settings.setValue(u"window/geometry"_s, saveGeometry());
    settings.setValue(u"window/state"_s, saveState());
    settings.setValue(u"window/sections"_s, m_splitter->saveState());
    m_help.reset(); // so that the program ends with this window
}

void EditorWindow::dragEnterEvent(QDragEnterEvent *event)
{
    const QList<QUrl> urls = event->mimeData()->urls();
    if (urls.size() == 1 && urls.front().isLocalFile())
        event->acceptProposedAction();
}

void EditorWindow::dropEvent(QDropEvent *event)
{
    event->acceptProposedAction();
    openInPlace(event->mimeData()->urls().value(0).toLocalFile());
}

void EditorWindow::noteRecent(const QString &path)
{
    QSettings settings;
    QStringList files = settings.value(u"recentFiles"_s).toStringList();
    const QString absolute = QFileInfo(path).absoluteFilePath();
    files.removeAll(absolute);
    files.prepend(absolute);
    settings.setValue(u"recentFiles"_s, files.first(std::min(files.size(), mostRecentFiles)));
}

void EditorWindow::updateRecentMenu()
{
    m_recentMenu->clear();
    for (const QString &path : QSettings().value(u"recentFiles"_s).toStringList())
        m_recentMenu->addAction(QString(path).replace(u'&', "&&"_L1), this,
                                [this, path] { openInPlace(path); });
    m_recentMenu->setEnabled(!m_recentMenu->isEmpty());
}

void EditorWindow::followModified()
{
    const QString name = QFileInfo(m_document.path()).fileName();
    setWindowTitle((name.isEmpty() ? tr("New configuration") : name) + "[*]"_L1);
    setWindowModified(m_document.isModified());
}

// Shows the section that was shown before, if it is still there.
void EditorWindow::followText()
{
    const std::vector<ShownSection> &sections = m_sections.sections();
    const auto same = std::ranges::find_if(sections, [this](const ShownSection &section) {
        return section.key == m_shownKey && section.isRepeated == m_shownIsRepeated;
    });
    const int number = same == sections.end() ? 0 : static_cast<int>(same - sections.begin());
    const QModelIndex index = m_sections.indexOf(number);
    m_sectionsView->expandAll();
    if (m_sectionsView->currentIndex() == index)
        showSection(number);
    else
        m_sectionsView->setCurrentIndex(index);
    followCurrent();
    if (!m_findField->text().isEmpty())
        m_found = findSettings(m_document.text(), sections, m_findField->text());
}

void EditorWindow::showSection(int number)
{
    const ShownSection &section = m_sections.sections()[static_cast<std::size_t>(number)];
    const int row = m_settingsView->currentIndex().row();
    const bool isSame = section.key == m_shownKey && section.isRepeated == m_shownIsRepeated;
    m_shownKey = section.key;
    m_shownIsRepeated = section.isRepeated;
    m_settings.show(section);
    if (!m_settingsView->currentIndex().isValid() && m_settings.rowCount() > 0)
        m_settingsView->setCurrentIndex(m_settings.index(
            isSame ? std::clamp(row, 0, m_settings.rowCount() - 1) : 0, SettingsModel::valueColumn));
    followCurrent();
}

int EditorWindow::currentSection() const
{
    const ShownSection *const section = m_sections.sectionAt(m_sectionsView->currentIndex());
    return section ? static_cast<int>(section - m_sections.sections().data()) : -1;
}

const ShownSetting *EditorWindow::currentSetting() const
{
    const QModelIndex index = m_settingsView->currentIndex();
    return index.isValid() ? &m_settings.setting(index) : nullptr;
}

QString EditorWindow::currentKey() const
{
    const ShownSetting *const setting = currentSetting();
    return setting ? keyOf(*m_settings.section(), *setting) : m_shownKey;
}

void EditorWindow::followCurrent()
{
    const QModelIndex index = m_settingsView->currentIndex();
    if (index.isValid() && index.column() != SettingsModel::valueColumn) {
        m_settingsView->setCurrentIndex(index.siblingAtColumn(SettingsModel::valueColumn));
        return; // and is here again
    }
    const ShownSetting *const setting = currentSetting();
    const std::optional<ShownSection> &section = m_settings.section();
    m_keyLabel->setText(currentKey().simplified());
    m_explanation->setText(!setting              ? QString()
                               : !setting->known ? tr("Nothing reads this setting.")
                                                 : explanationOf(*setting));
    updateRemark();

    const bool isInFile = setting && setting->entry != absent;
    m_editValue->setEnabled(setting);
    m_reset->setEnabled(isInFile && setting->known);
    m_removeSetting->setEnabled(isInFile);
    m_copyKey->setEnabled(!currentKey().isEmpty());
    m_addSetting->setEnabled(section && section->entry != absent);
    m_copySettings->setEnabled(section && section->group == ShownSection::Group::documents);
    m_removeSection->setEnabled(section && section->entry > ConfigurationText::wholeFile);
    m_preview->followKey(currentKey());
}

void EditorWindow::updateRemark(const QString &typed)
{
    const ShownSetting *const setting = currentSetting();
    const QString remark = !typed.isEmpty() || !setting ? typed : m_settings.findings(*setting).join(u'\n');
    m_remark->setText(remark);
    m_remark->setVisible(!remark.isEmpty());
}

void EditorWindow::goTo(Place place)
{
    if (place.section < 0)
        return;
    m_sectionsView->setCurrentIndex(m_sections.indexOf(place.section));
    if (place.setting < 0)
        return;
    const QModelIndex index = m_settings.index(place.setting, SettingsModel::valueColumn);
    m_settingsView->setCurrentIndex(index);
    m_settingsView->scrollTo(index);
}

void EditorWindow::goToEntry(int entry)
{
    const ConfigurationText::Entry &wanted = m_document.text().entry(entry);
    const int parent = wanted.isSetting() ? wanted.parent : entry;
    const std::vector<ShownSection> &sections = m_sections.sections();
    const auto section = std::ranges::find(sections, parent, &ShownSection::entry);
    if (section == sections.end())
        return;
    const std::vector<ShownSetting> settings = shownSettings(m_document.text(), *section);
    const auto setting = std::ranges::find(settings, entry, &ShownSetting::entry);
    goTo({static_cast<int>(section - sections.begin()),
          wanted.isSetting() && setting != settings.end() ? static_cast<int>(setting - settings.begin())
                                                          : -1});
}

// To what stands in its line under its key, or to what stands there.
void EditorWindow::goToFinding(const Finding &finding)
{
    const ConfigurationText &text = m_document.text();
    int onLine = absent;
    for (int i = 1; i < static_cast<int>(text.entries().size()); ++i) {
        if (text.entry(i).line != finding.line)
            continue;
        if (text.keyOf(i) == finding.key) {
            goToEntry(i);
            return;
        }
        onLine = onLine == absent ? i : onLine;
    }
    if (onLine != absent) {
        goToEntry(onLine);
        return;
    }
    // Of the file as a whole, about what it does not have.
    const std::vector<Place> places = findSettings(text, m_sections.sections(), finding.key);
    if (!places.empty())
        goTo(places.front());
}

void EditorWindow::stepBack()
{
    m_document.undoStack().undo();
    goToEntry(m_document.entryChangedLast());
}

void EditorWindow::stepForward()
{
    m_document.undoStack().redo();
    goToEntry(m_document.entryChangedLast());
}

// Turns a switch; begins to edit any other value.
void EditorWindow::editValue(const QModelIndex &index)
{
    if (!index.isValid())
        return;
    const QModelIndex value = index.siblingAtColumn(SettingsModel::valueColumn);
    if (value.flags().testFlag(Qt::ItemIsUserCheckable))
        m_settings.setData(
            value, value.data(Qt::CheckStateRole).toInt() == Qt::Checked ? Qt::Unchecked : Qt::Checked,
            Qt::CheckStateRole);
    else if (!m_settingsView->indexWidget(value))
        m_settingsView->edit(value);
}

// Tells why when it cannot be done.
bool EditorWindow::apply(const TextChange &change, const QString &name)
{
    if (!change)
        m_dialogs.tell(tr("This cannot be done"), {change.fault + u'.'});
    else
        m_document.apply(change, name);
    return static_cast<bool>(change);
}

void EditorWindow::removeSetting()
{
    if (const ShownSetting *setting = currentSetting(); setting && setting->entry != absent)
        apply(m_document.text().remove(setting->entry),
              setting->known ? tr("Set Back %1").arg(setting->name) : tr("Remove %1").arg(setting->name));
}

void EditorWindow::removeSection()
{
    if (const std::optional<ShownSection> &section = m_settings.section(); section && section->entry > 0)
        apply(m_document.text().remove(section->entry),
              tr("Remove %1").arg(titleOf(*section, m_document.text())));
}

void EditorWindow::addSetting()
{
    const std::optional<ShownSection> section = m_settings.section();
    QInputDialog dialog(this);
    dialog.setWindowTitle(tr("Add a Setting"));
    dialog.setLabelText(tr("Name:"));
    dialog.setOkButtonText(tr("&Add"));
    dialog.setCancelButtonText(tr("Cancel"));
    const QString name = dialog.exec() == QDialog::Accepted ? dialog.textValue().trimmed() : QString();
    if (name.isEmpty()
        || !apply(m_document.text().addSetting(section->entry, name, {}), tr("Add %1").arg(name)))
        return;
    goToEntry(m_document.entryChangedLast());
    editValue(m_settingsView->currentIndex());
}

void EditorWindow::addPrinter()
{
    PrinterDialog dialog(printerNames(m_document.configuration()), this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const QString section = printersKey + u'.' + dialog.name() + u'.';
    const ConfigurationText &text = m_document.text();
    const TextChange model = text.set(section + "model"_L1, dialog.model());
    if (!model) {
        apply(model, {});
        return;
    }
    const ConfigurationText withModel(model.appliedTo(text.text()), text.kind());
    const TextChange output = withModel.set(section + "output"_L1, dialog.output());
    if (!output) {
        apply(output, {});
        return;
    }
    m_document.replace(output.appliedTo(withModel.text()), tr("Add %1").arg(dialog.name()));
    goToEntry(*m_document.text().settingOf(section + "model"_L1));
}

// The other profile has then what this one has, and lacks what it lacks.
void EditorWindow::copySettings()
{
    const ShownSection from = *m_settings.section();
    std::vector<ShownSection> profiles;
    QStringList titles;
    for (const ShownSection &section : m_sections.sections())
        if (section.group == ShownSection::Group::documents && section.key != from.key) {
            profiles.push_back(section);
            titles << titleOf(section, m_document.text());
        }
    const QString title = titleOf(from, m_document.text());
    QInputDialog dialog(this);
    dialog.setWindowTitle(tr("Copy Settings"));
    dialog.setLabelText(tr("Copy those of “%1” to:").arg(title));
    dialog.setComboBoxItems(titles);
    dialog.setOkButtonText(tr("&Copy"));
    dialog.setCancelButtonText(tr("Cancel"));
    if (dialog.exec() != QDialog::Accepted)
        return;
    const QString chosen = dialog.textValue();
    const ShownSection &to = profiles[static_cast<std::size_t>(titles.indexOf(chosen))];
    ConfigurationText text = m_document.text();
    for (const KnownSetting *setting : settingsOf(to.key)) {
        if (!findSetting(from.key + u'.' + setting->name))
            continue;
        const std::optional<int> source = text.settingOf(from.key + u'.' + setting->name);
        const QString target = to.key + u'.' + setting->name;
        const std::optional<int> old = text.settingOf(target);
        const TextChange change = source ? text.set(target, text.entry(*source).value)
            : old                        ? text.remove(*old)
                                         : TextChange();
        if (!change) {
            apply(change, {});
            return;
        }
        text = ConfigurationText(change.appliedTo(text.text()), text.kind());
    }
    m_document.replace(text.text(), tr("Copy %1 to %2").arg(title, chosen));
}

void EditorWindow::copyKey()
{
    QApplication::clipboard()->setText(currentKey());
}

void EditorWindow::find(const QString &words)
{
    m_found = findSettings(m_document.text(), m_sections.sections(), words);
    m_foundNumber = -1;
    if (words.trimmed().isEmpty())
        m_findCount->clear();
    else if (m_found.empty())
        m_findCount->setText(tr("Nothing found."));
    else
        findNext(1);
}

void EditorWindow::findNext(int step)
{
    if (m_found.empty()) {
        m_findField->setFocus(Qt::ShortcutFocusReason);
        return;
    }
    const auto count = static_cast<qsizetype>(m_found.size());
    m_foundNumber = (m_foundNumber + step + count) % count;
    goTo(m_found[static_cast<std::size_t>(m_foundNumber)]);
    m_findCount->setText(tr("%1 of %2").arg(m_foundNumber + 1).arg(count));
}

void EditorWindow::endFind()
{
    m_findField->clear();
    m_settingsView->setFocus();
}

void EditorWindow::showHelp()
{
    if (!m_help)
        m_help = std::make_unique<HelpWindow>();
    m_help->show();
    m_help->raise();
    m_help->activateWindow();
    const ShownSetting *const setting = currentSetting();
    m_help->showSetting(setting ? setting->name : QString());
}

void EditorWindow::showAbout()
{
    QMessageBox::about(
        this, tr("About"),
        tr("Tavolux Configuration %1\n\nEdits the configuration of tavolux-printer, which prints "
           "the documents of a restaurant.")
            .arg(QStringLiteral(TAVOLUX_VERSION)));
}
