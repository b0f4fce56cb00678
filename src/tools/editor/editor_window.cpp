#include "editor_window.h"

#include "dialogs.h"
#include "file_name.h"
#include "preview_pane.h"
#include "read_file.h"
#include "tx_configuration.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QSettings>
#include <QShortcut>
#include <QStatusBar>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QVBoxLayout>

#include <iostream>

using namespace Qt::StringLiterals;

namespace {

constexpr int messageMilliseconds = 4000;

// Settings of one section. To lay them out opened takes the toolkit quadratic time: a second for so many.
constexpr int mostOpened = 10'000;

} // namespace

EditorWindow::EditorWindow(const QString &path, const QString &type, Dialogs &dialogs)
    : m_file(path, type)
    , m_dialogs(dialogs)
    , m_findField(new QLineEdit)
    , m_keyLabel(new QLabel)
    , m_preview(new PreviewPane)
{
    setWindowTitle(u"%1[*]"_s.arg(QFileInfo(path).fileName()));
    resize(1000, 640);

    auto *findLabel = new QLabel(u"Fi&nd:"_s);
    findLabel->setBuddy(m_findField);
    m_findField->setObjectName(u"find"_s);
    m_findField->setClearButtonEnabled(true);
    m_findField->setPlaceholderText(u"section, setting or value"_s);
    connect(m_findField, &QLineEdit::textChanged, this, &EditorWindow::find);
    connect(m_findField, &QLineEdit::returnPressed, this, [this] { m_view->setFocus(); });
    auto *escape = new QShortcut(Qt::Key_Escape, m_findField);
    escape->setContext(Qt::WidgetShortcut);
    connect(escape, &QShortcut::activated, this, &EditorWindow::endFind);

    auto *findRow = new QHBoxLayout;
    findRow->addWidget(findLabel);
    findRow->addWidget(m_findField);
    auto *rows = new QVBoxLayout;
    rows->addLayout(findRow);
    setCentralWidget(new QWidget);
    centralWidget()->setLayout(rows);

    m_keyLabel->setObjectName(u"key"_s);
    m_keyLabel->setTextInteractionFlags(Qt::TextSelectableByMouse);
    statusBar()->addWidget(m_keyLabel);
    addDockWidget(Qt::RightDockWidgetArea, m_preview);
    m_preview->setVisible(QSettings().value(u"preview/shown"_s, true).toBool());
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
        if (QTreeWidgetItem *item = m_view->currentItem(); item && valueItem(item))
            activate(item);
    });
    editMenu->addAction(u"&Find"_s, QKeySequence::Find, this, [this] {
        m_findField->setFocus(Qt::ShortcutFocusReason);
        m_findField->selectAll();
    });

    menuBar()->addMenu(u"&View"_s)->addAction(m_preview->toggleViewAction());
}

void EditorWindow::open()
{
    const QString reason = m_file.read();
    if (reason.isEmpty()) {
        showTree();
        return;
    }
    QStringList details{reason};
    if (m_file.path() == TXConfiguration::userFile() && readRegularFile(m_file.path()).isMissing)
        details << u"The command “tavolux-config init” writes a configuration to start from."_s;
    m_dialogs.tell(u"Cannot read %1"_s.arg(m_file.path()), details);
}

// Puts a new view of what was read in the place of the one shown.
void EditorWindow::showTree()
{
    const bool finding = focusWidget() == m_findField;
    m_preview->setTree(nullptr, {}); // which goes
    m_view = m_file.view();
    centralWidget()->layout()->addWidget(m_view.get());
    setTabOrder(m_findField, m_view.get()); // a new widget comes after the preview otherwise
    m_view->show(); // the layout shows it later, too late for the focus
    if (!finding)
        m_view->setFocus();

    // Sections are closed at first, so that they fit the window; an opened one shows its values.
    QList<QTreeWidgetItem *> opened;
    for (QTreeWidgetItemIterator item(m_view.get()); *item; ++item) {
        const QTreeWidgetItem *parent = (*item)->parent();
        const bool isFileOrTop = !parent || !parent->parent();
        if (isFileOrTop || (valueItem(*item) && parent->childCount() <= mostOpened))
            opened.append(*item);
    }
    expandAll(opened);
    m_view->setCurrentItem(m_view->topLevelItem(0));
    m_view->setExpandsOnDoubleClick(false); // activation does
    m_view->setAccessibleName(u"Configuration"_s);

    connect(m_view.get(), &QTreeWidget::itemChanged, this, &EditorWindow::updateModified);
    connect(m_view.get(), &QTreeWidget::itemActivated, this, &EditorWindow::activate);
    connect(m_view.get(), &QTreeWidget::currentItemChanged, this, [this](const QTreeWidgetItem *item) {
        m_keyLabel->setText(item ? keyOf(item).simplified() : QString());
        m_preview->refresh();
    });
    m_preview->setTree(m_view.get(), m_file.type());
    m_unchanged = shownSections(*m_view);
    updateModified();
    m_filter.emplace(*m_view);
    find(m_findField->text());
}

// A value is still being typed when a shortcut is pressed in its field; leaving the field takes it over.
void EditorWindow::commitTypedValue()
{
    if (m_view->isAncestorOf(QApplication::focusWidget()))
        m_view->setFocus();
}

void EditorWindow::updateModified()
{
    setWindowModified(shownSections(*m_view) != m_unchanged);
    m_preview->refresh();
}

bool EditorWindow::save()
{
    commitTypedValue();
    if (!isWindowModified()) {
        statusBar()->showMessage(u"There is no change to save."_s, messageMilliseconds);
        return true;
    }

    constexpr QMessageBox::StandardButtons saveOrCancel = QMessageBox::Save | QMessageBox::Cancel;
    if (m_file.changedOnDisk()
        && m_dialogs.ask(u"%1 was changed by another program. Save over it?"_s.arg(m_file.path()), {},
                         saveOrCancel)
            != QMessageBox::Save)
        return false;
    const QStringList sideEffects = m_file.changesByWriting(*m_view);
    if (!sideEffects.isEmpty()
        && m_dialogs.ask(u"Saving changes more than the values shown. Save all the same?"_s, sideEffects,
                         saveOrCancel)
            != QMessageBox::Save)
        return false;

    const WriteResult written = m_file.write(*m_view);
    if (!written) {
        m_dialogs.tell(u"Cannot write %1"_s.arg(m_file.path()),
                       {written.fault + u'.', u"The changes are still in this window."_s});
        return false;
    }
    if (!written.remark.isEmpty())
        std::cerr << shownFileName(QApplication::applicationName() + ": "_L1 + m_file.path()
                                   + " is written, but "_L1 + written.remark)
                         .constData()
                  << std::endl;
    m_unchanged = shownSections(*m_view);
    updateModified();
    if (!sideEffects.isEmpty())
        open(); // so that the window shows what was made of it
    statusBar()->showMessage(written.remark.isEmpty() ? u"Saved."_s : u"Saved, but %1."_s.arg(written.remark),
                             messageMilliseconds);
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
        m_dialogs.ask(u"The changes in %1 are not saved. Save them?"_s.arg(m_file.path()), {},
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
    m_view->setCurrentItem(value);
    if (!m_view->isPersistentEditorOpen(value))
        m_view->editItem(value);
}

void EditorWindow::find(const QString &text)
{
    statusBar()->clearMessage();
    QTreeWidgetItem *match = m_filter->lookFor(text);
    if (!text.isEmpty()) {
        m_view->setCurrentItem(match); // no hidden item, which would be edited unseen
        if (!match)
            statusBar()->showMessage(u"Nothing found."_s, messageMilliseconds);
    }
    if (m_view->currentItem())
        m_view->scrollToItem(m_view->currentItem());
}

void EditorWindow::endFind()
{
    m_findField->clear();
    m_view->setFocus();
}
