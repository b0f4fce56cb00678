#include "editor_window.h"

#include "dialogs.h"
#include "tx_configuration.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QShortcut>
#include <QStatusBar>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int messageMilliseconds = 4000;

} // namespace

EditorWindow::EditorWindow(const QString &path, const QString &type, Dialogs &windowDialogs)
    : file(path, type)
    , dialogs(windowDialogs)
    , findField(new QLineEdit)
    , keyLabel(new QLabel)
{
    setWindowTitle(u"%1[*]"_s.arg(QFileInfo(path).fileName()));
    resize(640, 560);

    auto *findLabel = new QLabel(u"Fi&nd:"_s);
    findLabel->setBuddy(findField);
    findField->setObjectName(u"find"_s);
    findField->setClearButtonEnabled(true);
    findField->setPlaceholderText(u"section, setting or value"_s);
    connect(findField, &QLineEdit::textChanged, this, &EditorWindow::find);
    connect(findField, &QLineEdit::returnPressed, this, [this] { view->setFocus(); });
    auto *escape = new QShortcut(Qt::Key_Escape, findField);
    escape->setContext(Qt::WidgetShortcut);
    connect(escape, &QShortcut::activated, this, &EditorWindow::endFind);

    auto *findRow = new QHBoxLayout;
    findRow->addWidget(findLabel);
    findRow->addWidget(findField);
    auto *rows = new QVBoxLayout;
    rows->addLayout(findRow);
    setCentralWidget(new QWidget);
    centralWidget()->setLayout(rows);

    keyLabel->setObjectName(u"key"_s);
    keyLabel->setTextInteractionFlags(Qt::TextSelectableByMouse);
    statusBar()->addWidget(keyLabel);
    createActions();
    showTree();
}

EditorWindow::~EditorWindow() = default;

void EditorWindow::createActions()
{
    QMenu *fileMenu = menuBar()->addMenu(u"&File"_s);
    fileMenu->addAction(u"&Save"_s, QKeySequence::Save, this, &EditorWindow::save);
    fileMenu->addAction(u"&Reload"_s, QKeySequence(Qt::Key_F5), this, &EditorWindow::reload);
    fileMenu->addSeparator();
    fileMenu->addAction(u"&Quit"_s, QKeySequence(Qt::CTRL | Qt::Key_Q), this, &EditorWindow::close);

    QMenu *editMenu = menuBar()->addMenu(u"&Edit"_s);
    editMenu->addAction(u"&Edit Value"_s, QKeySequence(Qt::Key_F2), this, [this] {
        if (QTreeWidgetItem *item = view->currentItem(); item && valueItem(item))
            activate(item);
    });
    editMenu->addAction(u"&Find"_s, QKeySequence::Find, this, [this] {
        findField->setFocus(Qt::ShortcutFocusReason);
        findField->selectAll();
    });
}

void EditorWindow::open()
{
    const QString reason = file.read();
    if (reason.isEmpty()) {
        showTree();
        return;
    }
    QStringList details{reason};
    if (file.path() == TXConfiguration::userFile() && !QFileInfo::exists(file.path()))
        details << u"The command “tavolux-config init” writes a configuration to start from."_s;
    dialogs.tell(u"Cannot read %1"_s.arg(file.path()), details);
}

// Puts a new view of what was read in the place of the one shown.
void EditorWindow::showTree()
{
    const bool finding = focusWidget() == findField;
    view = file.view();
    centralWidget()->layout()->addWidget(view.get());
    view->show(); // the layout shows it later, too late for the focus
    if (!finding)
        view->setFocus();

    // Sections are closed at first, so that they fit the window; an opened one shows its values.
    for (QTreeWidgetItemIterator item(view.get()); *item; ++item)
        (*item)->setExpanded(valueItem(*item) || !(*item)->parent() || !(*item)->parent()->parent());
    view->setCurrentItem(view->topLevelItem(0));
    view->setExpandsOnDoubleClick(false); // activation does
    view->setAccessibleName(u"Configuration"_s);

    connect(view.get(), &QTreeWidget::itemChanged, this, &EditorWindow::updateModified);
    connect(view.get(), &QTreeWidget::itemActivated, this, &EditorWindow::activate);
    connect(view.get(), &QTreeWidget::currentItemChanged, this, [this](const QTreeWidgetItem *item) {
        keyLabel->setText(item ? keyOf(item).simplified() : QString());
    });
    unchanged = shownSections(*view);
    updateModified();
    filter.emplace(*view);
    find(findField->text());
}

// A value is still being typed when a shortcut is pressed in its field; leaving the field takes it over.
void EditorWindow::commitTypedValue()
{
    if (view->isAncestorOf(QApplication::focusWidget()))
        view->setFocus();
}

void EditorWindow::updateModified()
{
    setWindowModified(shownSections(*view) != unchanged);
}

bool EditorWindow::save()
{
    commitTypedValue();
    if (!isWindowModified()) {
        statusBar()->showMessage(u"There is no change to save."_s, messageMilliseconds);
        return true;
    }

    constexpr QMessageBox::StandardButtons saveOrCancel = QMessageBox::Save | QMessageBox::Cancel;
    if (file.changedOnDisk()
        && dialogs.ask(u"%1 was changed by another program. Save over it?"_s.arg(file.path()), {},
                       saveOrCancel)
            != QMessageBox::Save)
        return false;
    const QStringList sideEffects = file.changesByWriting(*view);
    if (!sideEffects.isEmpty()
        && dialogs.ask(u"Saving changes more than the values shown. Save all the same?"_s, sideEffects,
                       saveOrCancel)
            != QMessageBox::Save)
        return false;

    if (!file.write(*view)) {
        dialogs.tell(
            u"Cannot write %1"_s.arg(file.path()),
            {u"Either the folder is missing, or you have no right to write there, or the disk is full."_s,
             u"The changes are still in this window."_s});
        return false;
    }
    unchanged = shownSections(*view);
    updateModified();
    if (!sideEffects.isEmpty())
        open(); // so that the window shows what was made of it
    statusBar()->showMessage(u"Saved."_s, messageMilliseconds);
    return true;
}

void EditorWindow::reload()
{
    if (mayLoseChanges())
        open();
}

void EditorWindow::closeEvent(QCloseEvent *event)
{
    event->setAccepted(mayLoseChanges());
}

bool EditorWindow::mayLoseChanges()
{
    commitTypedValue();
    if (!isWindowModified())
        return true;
    const QMessageBox::StandardButton answer =
        dialogs.ask(u"The changes in %1 are not saved. Save them?"_s.arg(file.path()), {},
                    QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
    return answer == QMessageBox::Discard || (answer == QMessageBox::Save && save());
}

// Opens or closes a section; begins to edit a setting.
void EditorWindow::activate(QTreeWidgetItem *item)
{
    QTreeWidgetItem *value = valueItem(item);
    if (!value) {
        item->setExpanded(!item->isExpanded());
        return;
    }
    value->parent()->setExpanded(true);
    view->setCurrentItem(value);
    if (!view->isPersistentEditorOpen(value))
        view->editItem(value);
}

void EditorWindow::find(const QString &text)
{
    statusBar()->clearMessage();
    QTreeWidgetItem *match = filter->lookFor(text);
    if (!text.isEmpty()) {
        view->setCurrentItem(match); // no hidden item, which would be edited unseen
        if (!match)
            statusBar()->showMessage(u"Nothing found."_s, messageMilliseconds);
    }
    if (view->currentItem())
        view->scrollToItem(view->currentItem());
}

void EditorWindow::endFind()
{
    findField->clear();
    view->setFocus();
}
