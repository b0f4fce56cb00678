#include "editor_window.h"

#include "configuration_text.h"
#include "file_name.h"
#include "file_size_limit.h"
#include "findings_pane.h"
#include "help_window.h"
#include "interface_language.h"
#include "preview_pane.h"
#include "printer_dialog.h"
#include "read_file.h"
#include "scripted_dialogs.h"
#include "starter_configuration.h"
#include "starter_dialog.h"
#include "temporary_home.h"
#include "tx_configuration.h"

#include <QAction>
#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QHeaderView>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QLocale>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QPushButton>
#include <QSet>
#include <QSettings>
#include <QSpinBox>
#include <QStatusBar>
#include <QTest>
#include <QTextBlock>
#include <QTextTable>
#include <QTranslator>
#include <QTreeView>

#include <cstdio>
#include <memory>

#include <sys/fsuid.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

const QByteArray configuration = "tavolux : {\n"
                                 "  language : {\n"
                                 "    file = \"\";\n"
                                 "  };\n"
                                 "\n"
                                 "  receiptdoc : as the guests get it {\n"
                                 "    paperWidth = 42;\n"
                                 "    printHeader = true;\n"
                                 "    printTime = yes;\n"
                                 "    mystery = \"a b\";\n"
                                 "  };\n"
                                 "  printers : { till : { model = generic-80; output = x; }; };\n"
                                 "};\n";

QByteArray configurationWith(const QByteArray &before, const QByteArray &after)
{
    return QByteArray(configuration).replace(before, after);
}

QByteArray configurationWithWidth(const QByteArray &width)
{
    return configurationWith("42", width);
}

const QString paperWidth = u"tavolux.receiptdoc.paperWidth"_s;

} // namespace

class EditorWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void showsTheFile();
    void editsANumberByKeyboard();
    void editsByMouse();
    void editsByKey_data();
    void editsByKey();
    void boundsNumbers();
    void aNumberThatIsNoneIsText();
    void turnsASwitch_data();
    void turnsASwitch();
    void correctsASwitchThatIsNone();
    void choosesFromAList();
    void choosesFiles_data();
    void choosesFiles();
    void editsWhatNobodyReads();
    void setsWhatTheFileDoesNotName();
    void leavesWhatIsNotTouched_data();
    void leavesWhatIsNotTouched();
    void writesADefaultThatIsTyped();
    void leavesTheValueOnEscape();
    void saysAtOnceWhatWouldBeLost();
    void showsFindingsAsTheyAreTyped();
    void explainsTheSetting();

    void undoesAndRedoes();
    void undoGoesToTheSetting();
    void setsBackToDefault();
    void removesASetting();
    void removesASection();
    void addsASetting();
    void refusesANameThatIsNone();
    void addsAPrinter();
    void copiesSettingsInOneStep();
    void copiesTheKey();

    void findsByTyping();
    void findsNextAndPrevious();
    void saysWhenNothingIsFound();
    void listsFindingsAndGoesToThem();

    void savesWhatIsStillBeingTyped();
    void leavesAnUnchangedFileAlone();
    void savesXml();
    void asksBeforeItSavesNewFindings_data();
    void asksBeforeItSavesNewFindings();
    void savesAs();
    void startsWhereThereIsNoFile_data();
    void startsWhereThereIsNoFile();
    void startsAnew();
    void opensRecentFiles();
    void opensDroppedFiles();
    void keepsItsSize();
    void showsHelpAboutTheSetting();
    void followsLinksInHelp();

    void asksBeforeItCloses_data();
    void asksBeforeItCloses();
    void closesUnasked();
    void asksBeforeItReloads_data();
    void asksBeforeItReloads();
    void reloadsWhatIsOnDisk();
    void keepsWhatItHasWhenItCannotReload();
    void asksBeforeItOverwritesAnothersChange_data();
    void asksBeforeItOverwritesAnothersChange();
    void tellsWhatCannotBeRead_data();
    void tellsWhatCannotBeRead();
    void tellsWhatCannotBeWritten();
    void losesNothingOnAFullDisk();
    void doesNotWaitForAPipe();
    void opensAndSavesANameOfBytes();
    void saysWhatOfAFileIsNotKept();
    void speaksTheLanguageOfThePerson_data();
    void speaksTheLanguageOfThePerson();
    void saysWhatIsWrongInTheLanguageOfThePerson_data();
    void saysWhatIsWrongInTheLanguageOfThePerson();
    void tellsAboutItself();
    void asksInMessageBoxes();
    void cutsLongExplanationsInMessageBoxes();

private:
    void open(const QByteArray &text) { openFile(home->writeFile(u"my.conf"_s, text)); }
    void openFile(const QString &path);
    QTreeView *sections() const { return window->findChild<QTreeView *>(u"sections"_s); }
    QTreeView *settings() const { return window->findChild<QTreeView *>(u"settings"_s); }
    QLineEdit *findField() const { return window->findChild<QLineEdit *>(u"find"_s); }
    QString label(const QString &name) const { return window->findChild<QLabel *>(name)->text(); }
    QAction *action(const QString &text) const;
    template <typename Field>
    Field *field() const
    {
        auto *const found = settings()->viewport()->findChild<Field *>();
        if (!found)
            qFatal("no such field is open");
        return found;
    }
    /* Chooses what opens a dialog, and comes back from it. */
    void chooseDialog(const QString &text) const
    {
        action(text)->trigger();
        window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window.get()));
    }
    bool isEditing() const { return settings()->viewport()->findChild<QWidget *>(); }
    void select(const QString &key) const;
    QString shown(const QString &key) const;
    void type(const QString &key, const QString &text) const;
    void change(const QString &key, const QString &text) const;
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const;
    void save() const { press(Qt::Key_S, Qt::ControlModifier); }

    std::unique_ptr<TemporaryHome> home;
    QString file;
    ScriptedDialogs dialogs;
    std::unique_ptr<EditorWindow> window;
};

void EditorWindowTest::init()
{
    home = std::make_unique<TemporaryHome>();
    home->enter();
    QSettings().clear();
    dialogs.heard.clear();
    dialogs.answers.clear();
}

void EditorWindowTest::cleanup()
{
    window.reset();
    QCOMPARE(dialogs.answers.size(), 0); // each prepared answer was asked for
}

void EditorWindowTest::openFile(const QString &path)
{
    file = path;
    window = std::make_unique<EditorWindow>(dialogs);
    window->show();
    window->open(path);
    window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(window.get()));
}

QAction *EditorWindowTest::action(const QString &text) const
{
    for (QAction *candidate : window->findChildren<QAction *>())
        if (candidate->text().remove(u'&') == text)
            return candidate;
    qFatal("there is no action %s", qPrintable(text));
}

/* Goes to a key as a person would who has it from somewhere. */
void EditorWindowTest::select(const QString &key) const
{
    press(Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(findField(), key);
    QTest::keyClick(findField(), Qt::Key_Return);
    findField()->clear();
    if (label(u"key"_s) != key)
        qFatal("there is no %s", qPrintable(key));
}

QString EditorWindowTest::shown(const QString &key) const
{
    select(key);
    return settings()->currentIndex().data().toString();
}

// Types over the value; the field stays open.
void EditorWindowTest::type(const QString &key, const QString &text) const
{
    select(key);
    press(Qt::Key_F2);
    if (!isEditing())
        qFatal("no field is open");
    QTest::keyClicks(QApplication::focusWidget(), text);
}

void EditorWindowTest::change(const QString &key, const QString &text) const
{
    type(key, text);
    press(Qt::Key_Return);
    QTRY_VERIFY(!isEditing());
    QCOMPARE(settings()->currentIndex().data(Qt::EditRole).toString(), text);
}

void EditorWindowTest::press(Qt::Key key, Qt::KeyboardModifiers modifiers) const
{
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
}

void EditorWindowTest::showsTheFile()
{
    open(configuration);
    QCOMPARE(dialogs.heard, QStringList());
    QCOMPARE(window->windowTitle(), u"my.conf[*]"_s);
    QVERIFY(!window->isWindowModified());
    QCOMPARE(QApplication::focusWidget(), settings());
    QCOMPARE(shown(paperWidth), u"42"_s);
    QCOMPARE(sections()->currentIndex().data().toString(), u"Receipts"_s);
    QCOMPARE(shown(u"tavolux.receiptdoc.mystery"_s), u"a b"_s);
    QCOMPARE(shown(u"tavolux.printers.till.columns"_s), u"48"_s); // the model's
}

void EditorWindowTest::editsANumberByKeyboard()
{
    open(configuration);
    change(paperWidth, u"48"_s);
    QVERIFY(window->isWindowModified());
    QCOMPARE(fileBytes(file), configuration);
    save();
    QCOMPARE(fileBytes(file), configurationWithWidth("48"));
    QVERIFY(!window->isWindowModified());
    QCOMPARE(window->statusBar()->currentMessage(), u"Saved."_s);
    change(paperWidth, u"40"_s);
    save();
    QCOMPARE(fileBytes(file), configurationWithWidth("40"));
    QCOMPARE(dialogs.heard, QStringList());
}

void EditorWindowTest::editsByMouse()
{
    open(configuration);
    const QModelIndex receipts = sections()->model()->index(2, 0, sections()->model()->index(0, 0));
    QTest::mouseClick(sections()->viewport(), Qt::LeftButton, {}, sections()->visualRect(receipts).center());
    const QModelIndex width = settings()->model()->index(3, 1);
    const QPoint place = settings()->visualRect(width).center();
    QTest::mouseClick(settings()->viewport(), Qt::LeftButton, {}, place);
    QCOMPARE(label(u"key"_s), paperWidth);
    QTest::mouseDClick(settings()->viewport(), Qt::LeftButton, {}, place);
    QTest::keyClicks(field<QSpinBox>(), u"48"_s);
    const QModelIndex header = settings()->model()->index(8, 0);
    QTest::mouseClick(settings()->viewport(), Qt::LeftButton, {}, settings()->visualRect(header).center());
    QCOMPARE(label(u"key"_s), u"tavolux.receiptdoc.printHeader"_s); // the name counts as its value
    save();
    QCOMPARE(fileBytes(file), configurationWithWidth("48"));
}

void EditorWindowTest::editsByKey_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("F2") << Qt::Key_F2;
    QTest::newRow("Return") << Qt::Key_Return;
    QTest::newRow("the first digit") << Qt::Key_4;
}

void EditorWindowTest::editsByKey()
{
    QFETCH(const Qt::Key, key);
    open(configuration);
    select(paperWidth);
    press(key);
    QTest::keyClicks(field<QSpinBox>(), key == Qt::Key_4 ? u"8"_s : u"48"_s);
    press(Qt::Key_Return);
    QTRY_VERIFY(!isEditing()); // Return ends editing and does not begin it anew
    QCOMPARE(shown(paperWidth), u"48"_s);
}

void EditorWindowTest::boundsNumbers()
{
    open(configuration);
    type(u"tavolux.printers.till.feed"_s, u"3000"_s); // of which the last digit is one too many
    press(Qt::Key_Return);
    QCOMPARE(shown(u"tavolux.printers.till.feed"_s), u"30"_s);
    type(paperWidth, u"forty7"_s);
    press(Qt::Key_Return);
    QCOMPARE(shown(paperWidth), u"7"_s);
    press(Qt::Key_F2);
    press(Qt::Key_Up);
    press(Qt::Key_Return);
    QCOMPARE(shown(paperWidth), u"8"_s);
}

void EditorWindowTest::aNumberThatIsNoneIsText()
{
    for (const QByteArray &value : {"fortytwo"_ba, "-1"_ba, "100001"_ba, "4 2"_ba}) {
        open(configurationWithWidth(value));
        select(paperWidth);
        QCOMPARE(settings()->currentIndex().data().toString(), QString::fromLatin1(value));
        QVERIFY(!settings()->currentIndex().siblingAtColumn(0).data(Qt::DecorationRole).isNull());
        press(Qt::Key_F2);
        QCOMPARE(field<QLineEdit>()->text(), QString::fromLatin1(value));
        QTest::keyClicks(field<QLineEdit>(), u"42"_s);
        press(Qt::Key_Return);
        QTRY_VERIFY(!isEditing());
        save();
        QCOMPARE(fileBytes(file), configuration);
    }
}

void EditorWindowTest::turnsASwitch_data()
{
    QTest::addColumn<bool>("byMouse");
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("by mouse") << true << Qt::Key_unknown;
    QTest::newRow("Space") << false << Qt::Key_Space;
    QTest::newRow("Return") << false << Qt::Key_Return;
    QTest::newRow("F2") << false << Qt::Key_F2;
}

void EditorWindowTest::turnsASwitch()
{
    QFETCH(const bool, byMouse);
    QFETCH(const Qt::Key, key);
    open(configuration);
    select(u"tavolux.receiptdoc.printHeader"_s);
    if (byMouse) {
        const QRect cell = settings()->visualRect(settings()->currentIndex());
        QTest::mouseClick(settings()->viewport(), Qt::LeftButton, {},
                          QPoint(cell.left() + 10, cell.center().y()));
    } else {
        press(key);
    }
    QCOMPARE(settings()->currentIndex().data(Qt::CheckStateRole).toInt(), int(Qt::Unchecked));
    save();
    QCOMPARE(fileBytes(file), configurationWith("printHeader = true", "printHeader = false"));
}

void EditorWindowTest::correctsASwitchThatIsNone()
{
    open(configuration);
    const QString key = u"tavolux.receiptdoc.printTime"_s;
    QCOMPARE(shown(key), u"yes"_s);
    QVERIFY(label(u"remark"_s).contains("neither \"true\" nor \"false\""_L1));
    press(Qt::Key_F2);
    QCOMPARE(field<QComboBox>()->count(), 2);
    QTest::keyClicks(field<QComboBox>(), u"true"_s);
    press(Qt::Key_Return);
    QTRY_VERIFY(!isEditing());
    QCOMPARE(settings()->currentIndex().data(Qt::CheckStateRole).toInt(), int(Qt::Checked));
    QTRY_COMPARE(label(u"remark"_s), QString());
}

void EditorWindowTest::choosesFromAList()
{
    open(configuration);
    select(u"tavolux.printers.till.cut"_s);
    press(Qt::Key_F2);
    QVERIFY(!field<QComboBox>()->isEditable());
    QTest::keyClicks(field<QComboBox>(), u"none"_s);
    press(Qt::Key_Return);
    QTRY_VERIFY(!isEditing());
    save();
    QCOMPARE(fileBytes(file), configurationWith("output = x;", "output = x; cut = none;"));
}

void EditorWindowTest::choosesFiles_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("heard");
    QTest::newRow("a file") << u"tavolux.printers.till.output"_s << u"file from x"_s;
    QTest::newRow("a folder") << u"tavolux.language.basedir"_s << u"folder from "_s;
}

void EditorWindowTest::choosesFiles()
{
    QFETCH(const QString, key);
    open(configuration);
    select(key);
    press(Qt::Key_F2);
    dialogs.chosen = u"/dev/null"_s;
    field<QLineEdit>()->actions().front()->trigger();
    QTEST(dialogs.heard.value(0), "heard");
    QTRY_VERIFY(!isEditing());
    QCOMPARE(shown(key), u"/dev/null"_s);
}

void EditorWindowTest::editsWhatNobodyReads()
{
    open(configuration);
    change(u"tavolux.receiptdoc.mystery"_s, u"c"_s);
    save();
    QCOMPARE(fileBytes(file), configurationWith("a b", "c"));
}

void EditorWindowTest::setsWhatTheFileDoesNotName()
{
    open(configuration);
    change(u"tavolux.receiptdoc.priceFieldWidth"_s, u"8"_s);
    change(u"tavolux.solddoc.paperWidth"_s, u"32"_s);
    save();
    QCOMPARE(fileBytes(file),
             configurationWith("\"a b\";\n", "\"a b\";\n    priceFieldWidth = 8;\n")
                 .replace("output = x; }; };\n", "output = x; }; };\n  solddoc : { paperWidth = 32; };\n"));
}

void EditorWindowTest::leavesWhatIsNotTouched_data()
{
    QTest::addColumn<QString>("key");
    QTest::newRow("a number in other digits") << paperWidth;
    QTest::newRow("a default") << u"tavolux.receiptdoc.priceFieldWidth"_s;
    QTest::newRow("a text") << u"tavolux.receiptdoc.mystery"_s;
    QTest::newRow("a choice") << u"tavolux.printers.till.cut"_s;
}

void EditorWindowTest::leavesWhatIsNotTouched()
{
    QFETCH(const QString, key);
    open(configurationWithWidth("0042"));
    select(key);
    press(Qt::Key_F2);
    QVERIFY(isEditing());
    press(Qt::Key_Return);
    QTRY_VERIFY(!isEditing());
    QVERIFY(!window->isWindowModified());
}

void EditorWindowTest::writesADefaultThatIsTyped()
{
    open(configuration);
    change(u"tavolux.receiptdoc.priceFieldWidth"_s, u"0"_s);
    save();
    QCOMPARE(fileBytes(file), configurationWith("\"a b\";\n", "\"a b\";\n    priceFieldWidth = 0;\n"));
}

void EditorWindowTest::leavesTheValueOnEscape()
{
    open(configuration);
    type(paperWidth, u"48"_s);
    press(Qt::Key_Escape);
    QTRY_VERIFY(!isEditing());
    QCOMPARE(shown(paperWidth), u"42"_s);
    QVERIFY(!window->isWindowModified());
}

void EditorWindowTest::saysAtOnceWhatWouldBeLost()
{
    open(configuration);
    type(u"tavolux.receiptdoc.mystery"_s, u"a;"_s);
    QCOMPARE(label(u"remark"_s), u"A value cannot have the character ;, which would end it."_s);
    press(Qt::Key_Return);
    QCoreApplication::processEvents(); // in which a field would close
    QVERIFY(isEditing()); // so that it can be mended
    QVERIFY(!window->isWindowModified());
    press(Qt::Key_Backspace);
    press(Qt::Key_Return);
    QTRY_VERIFY(!isEditing());
    QCOMPARE(shown(u"tavolux.receiptdoc.mystery"_s), u"a"_s);

    press(Qt::Key_F2);
    QInputMethodEvent euro;
    euro.setCommitString(u"\u20ac"_s); // as the keyboard of a country gives it
    QApplication::sendEvent(field<QLineEdit>(), &euro);
    QVERIFY(label(u"remark"_s).startsWith(u"\"\u20ac\" would be lost"_s));
    settings()->setFocus(); // whoever leaves the field is told once more
    QTRY_VERIFY(!isEditing());
    QVERIFY(window->statusBar()->currentMessage().contains("would be lost"_L1));
    QCOMPARE(shown(u"tavolux.receiptdoc.mystery"_s), u"a"_s);
}

void EditorWindowTest::showsFindingsAsTheyAreTyped()
{
    open(configuration);
    type(u"tavolux.printers.till.drawerPulse"_s, u"5"_s);
    QVERIFY(label(u"remark"_s).startsWith("\"drawerPulse\" is \"5\", not "_L1));
    press(Qt::Key_Return);
    QTRY_VERIFY(!settings()->currentIndex().siblingAtColumn(0).data(Qt::DecorationRole).isNull());
    QVERIFY(window->findChild<QLabel *>(u"remark"_s)->isVisible());
    press(Qt::Key_Z, Qt::ControlModifier);
    QTRY_VERIFY(window->findChild<QLabel *>(u"remark"_s)->isHidden());
}

void EditorWindowTest::explainsTheSetting()
{
    open(configuration);
    select(u"tavolux.receiptdoc.printHeader"_s);
    QCOMPARE(label(u"explanation"_s),
             u"Whether the lines of headers are printed; the printer's name always is."_s);
    select(u"tavolux.receiptdoc.mystery"_s);
    QCOMPARE(label(u"explanation"_s), u"Nothing reads this setting."_s);
}

void EditorWindowTest::undoesAndRedoes()
{
    open(configuration);
    QVERIFY(!action(u"Undo"_s)->isEnabled());
    change(paperWidth, u"48"_s);
    change(u"tavolux.receiptdoc.mystery"_s, u"c"_s);
    QCOMPARE(action(u"Undo: Change mystery"_s)->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_Z));
    press(Qt::Key_Z, Qt::ControlModifier);
    press(Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(!window->isWindowModified());
    QCOMPARE(shown(paperWidth), u"42"_s);
    press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    save();
    QCOMPARE(fileBytes(file), configurationWithWidth("48"));
    press(Qt::Key_Z, Qt::ControlModifier); // a save does not end it
    save();
    QCOMPARE(fileBytes(file), configuration);
}

void EditorWindowTest::undoGoesToTheSetting()
{
    open(configuration);
    change(paperWidth, u"48"_s);
    select(u"tavolux.language.file"_s);
    press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(label(u"key"_s), paperWidth);
    QCOMPARE(sections()->currentIndex().data().toString(), u"Receipts"_s);
}

void EditorWindowTest::setsBackToDefault()
{
    open(configuration);
    select(u"tavolux.receiptdoc.priceFieldWidth"_s);
    QVERIFY(!action(u"Set Back to Default"_s)->isEnabled()); // it has it
    select(paperWidth);
    press(Qt::Key_D, Qt::ControlModifier);
    QCOMPARE(label(u"key"_s), paperWidth);
    QCOMPARE(settings()->currentIndex().data().toString(), u"0"_s);
    save();
    QCOMPARE(fileBytes(file), configurationWith("    paperWidth = 42;\n", ""));
}

void EditorWindowTest::removesASetting()
{
    open(configuration);
    select(u"tavolux.receiptdoc.mystery"_s);
    press(Qt::Key_Delete);
    QVERIFY(!label(u"key"_s).isEmpty());
    save();
    QCOMPARE(fileBytes(file), configurationWith("    mystery = \"a b\";\n", ""));
}

void EditorWindowTest::removesASection()
{
    open(configuration);
    select(u"tavolux.printers.till.cut"_s);
    action(u"Remove Section"_s)->trigger();
    QCOMPARE(sections()->currentIndex().data().toString(), u"Kitchen tickets"_s); // as it is gone
    QVERIFY(!action(u"Remove Section"_s)->isEnabled()); // which the file does not have
    save();
    QCOMPARE(fileBytes(file), configurationWith(" till : { model = generic-80; output = x; };", ""));
}

void EditorWindowTest::addsASetting()
{
    open(configuration);
    select(paperWidth);
    inNextDialog<QInputDialog>([](QInputDialog &dialog) {
        QTest::keyClicks(dialog.findChild<QLineEdit *>(), u"riddle"_s);
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    chooseDialog(u"Add Setting…"_s);
    QCOMPARE(label(u"key"_s), u"tavolux.receiptdoc.riddle"_s);
    QTest::keyClicks(field<QLineEdit>(), u"d"_s); // it can be typed at once
    press(Qt::Key_Return);
    dialogs.answers << QMessageBox::Save; // nothing reads it
    save();
    QCOMPARE(fileBytes(file), configurationWith("\"a b\";\n", "\"a b\";\n    riddle = \"d\";\n"));
}

void EditorWindowTest::refusesANameThatIsNone()
{
    open(configuration);
    inNextDialog<QInputDialog>([](QInputDialog &dialog) {
        dialog.setTextValue(u"a = 1; b"_s);
        dialog.accept();
    });
    select(paperWidth);
    chooseDialog(u"Add Setting…"_s);
    QCOMPARE(dialogs.heard,
             QStringList({u"This cannot be done"_s, u"\"a = 1; b\" is no name that could be looked up."_s}));
    QVERIFY(!window->isWindowModified());
}

void EditorWindowTest::addsAPrinter()
{
    open(configuration);
    inNextDialog<PrinterDialog>([](PrinterDialog &dialog) {
        auto *const name = dialog.findChild<QLineEdit *>(u"name"_s);
        auto *const add = dialog.findChild<QPushButton *>();
        QVERIFY(!add->isEnabled());
        QTest::keyClicks(name, u"till"_s);
        QVERIFY(!add->isEnabled()); // it is there already
        QTest::keyClicks(name, u"2"_s);
        auto *const model = dialog.findChild<QComboBox *>(u"model"_s);
        model->setCurrentIndex(model->findData(u"generic-80"_s));
        QTest::keyClick(name, Qt::Key_Return);
    });
    chooseDialog(u"Add Printer…"_s);
    QCOMPARE(label(u"key"_s), u"tavolux.printers.till2.model"_s);
    QCOMPARE(settings()->currentIndex().data().toString(), u"generic-80"_s);
    save();
    QCOMPARE(fileBytes(file),
             configurationWith("output = x; };",
                               "output = x; }; till2 : { model = generic-80; output = \"/dev/usb/lp0\"; };"));
    press(Qt::Key_Z, Qt::ControlModifier);
    save();
    QCOMPARE(fileBytes(file), configuration);
}

void EditorWindowTest::copiesSettingsInOneStep()
{
    const QByteArray text = "tavolux : {\n  doc : { paperWidth = 32; printDate = true; extra = 1; };\n"
                            "  solddoc : { printTime = true; paperWidth = 40; topMargin = 3; };\n};\n";
    open(text);
    select(u"tavolux.doc.paperWidth"_s);
    inNextDialog<QInputDialog>([](QInputDialog &dialog) {
        dialog.setTextValue(u"Sold items"_s);
        dialog.accept();
    });
    chooseDialog(u"Copy Settings to…"_s);
    save();
    QCOMPARE(fileBytes(file),
             QByteArray(text).replace("printTime = true; paperWidth = 40; topMargin = 3;",
                                      "paperWidth = 32; printDate = true;"));
    press(Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(!action(u"Undo"_s)->isEnabled());
    save();
    QCOMPARE(fileBytes(file), text);
}

void EditorWindowTest::copiesTheKey()
{
    open(configuration);
    select(paperWidth);
    press(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(QApplication::clipboard()->text(), paperWidth);
}

void EditorWindowTest::findsByTyping()
{
    open(configuration);
    press(Qt::Key_F, Qt::ControlModifier);
    QCOMPARE(QApplication::focusWidget(), findField());
    QTest::keyClicks(findField(), u"receipts HEADER"_s);
    QCOMPARE(label(u"key"_s), u"tavolux.receiptdoc.printHeader"_s);
    QCOMPARE(label(u"findCount"_s), u"1 of 1"_s);
    press(Qt::Key_Return);
    QCOMPARE(QApplication::focusWidget(), settings());
    press(Qt::Key_Space);
    save();
    QCOMPARE(fileBytes(file), configurationWith("Header = true", "Header = false"));
    press(Qt::Key_F, Qt::ControlModifier);
    press(Qt::Key_Escape);
    QCOMPARE(findField()->text(), QString());
    QCOMPARE(label(u"findCount"_s), QString());
    QCOMPARE(QApplication::focusWidget(), settings());
}

void EditorWindowTest::findsNextAndPrevious()
{
    open(configuration);
    press(Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(findField(), u"paperWidth"_s);
    QCOMPARE(label(u"findCount"_s), u"1 of 8"_s);
    QCOMPARE(label(u"key"_s), u"tavolux.doc.paperWidth"_s);
    press(Qt::Key_F3);
    QCOMPARE(label(u"key"_s), u"tavolux.prefiscaldoc.paperWidth"_s);
    press(Qt::Key_F3, Qt::ShiftModifier);
    press(Qt::Key_F3, Qt::ShiftModifier);
    QCOMPARE(label(u"findCount"_s), u"8 of 8"_s);
    QCOMPARE(label(u"key"_s), u"tavolux.solddoc.paperWidth"_s);
    press(Qt::Key_F3);
    QCOMPARE(label(u"key"_s), u"tavolux.doc.paperWidth"_s);
}

void EditorWindowTest::saysWhenNothingIsFound()
{
    open(configuration);
    press(Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(findField(), u"submarine"_s);
    QCOMPARE(label(u"findCount"_s), u"Nothing found."_s);
    press(Qt::Key_F3);
    QCOMPARE(QApplication::focusWidget(), findField());
}

void EditorWindowTest::listsFindingsAndGoesToThem()
{
    open(configuration);
    auto *const list = window->findChild<FindingsPane *>()->findChild<QListWidget *>();
    QCOMPARE(list->count(), 2);
    QCOMPARE(window->findChild<FindingsPane *>()->windowTitle(), u"Found wrong: 2"_s);
    QVERIFY(list->item(0)->text().startsWith("Line 9: \"printTime\" is \"yes\""_L1));
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(1)).center());
    QCOMPARE(label(u"key"_s), u"tavolux.receiptdoc.mystery"_s);
    list->setCurrentRow(0);
    list->setFocus();
    press(Qt::Key_Return);
    QCOMPARE(label(u"key"_s), u"tavolux.receiptdoc.printTime"_s);
    change(paperWidth, u"3"_s);
    change(u"tavolux.receiptdoc.quantityFieldWidth"_s, u"3"_s);
    QTRY_COMPARE(list->count(), 3);
    QVERIFY(list->item(0)->text().contains("leaves no room"_L1));
    select(u"tavolux.language.file"_s);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(0)).center());
    QCOMPARE(sections()->currentIndex().data().toString(), u"Receipts"_s);
}

void EditorWindowTest::savesWhatIsStillBeingTyped()
{
    open(configuration);
    type(paperWidth, u"48"_s);
    save();
    QCOMPARE(fileBytes(file), configurationWithWidth("48"));
}

void EditorWindowTest::leavesAnUnchangedFileAlone()
{
    const QByteArray untidy = "r:{b=2;a=1;};s:{c=3;};";
    open(untidy);
    save();
    QCOMPARE(window->statusBar()->currentMessage(), u"There is no change to save."_s);
    QCOMPARE(fileBytes(file), untidy);
    QCOMPARE(dialogs.heard, QStringList());
}

void EditorWindowTest::savesXml()
{
    open("<tavolux><!-- note --><other k='v'/></tavolux>");
    change(u"tavolux.other.k"_s, u"5 < 6;"_s);
    save();
    QCOMPARE(fileBytes(file), "<tavolux><!-- note --><other k='5 &lt; 6;'/></tavolux>"_ba);
    QCOMPARE(dialogs.heard, QStringList());
}

void EditorWindowTest::asksBeforeItSavesNewFindings_data()
{
    QTest::addColumn<QMessageBox::StandardButton>("answer");
    QTest::newRow("save") << QMessageBox::Save;
    QTest::newRow("cancel") << QMessageBox::Cancel;
}

void EditorWindowTest::asksBeforeItSavesNewFindings()
{
    QFETCH(const QMessageBox::StandardButton, answer);
    open(configuration);
    change(u"tavolux.printers.till.logo"_s, u"/nowhere.png"_s);
    dialogs.answers << answer;
    save();
    QCOMPARE(dialogs.heard.size(), 2); // and nothing about what was wrong before
    QCOMPARE(dialogs.heard.front(), u"Something is wrong with the changes. Save all the same?"_s);
    QVERIFY(dialogs.heard.back().startsWith("the logo \"/nowhere.png\" is not printed"_L1));
    QCOMPARE(window->isWindowModified(), answer == QMessageBox::Cancel);
    QCOMPARE(fileBytes(file) == configuration, answer == QMessageBox::Cancel);

    // What was saved once is not asked about again.
    dialogs.heard.clear();
    change(paperWidth, u"40"_s);
    save();
    QCOMPARE(dialogs.heard.isEmpty(), answer == QMessageBox::Save);
}

void EditorWindowTest::savesAs()
{
    open(configuration);
    change(paperWidth, u"48"_s);
    dialogs.chosen = home->filePath(u"other.conf"_s);
    press(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(dialogs.heard, QStringList{u"name to save from "_s + file});
    QCOMPARE(fileBytes(file), configuration);
    QCOMPARE(fileBytes(home->filePath(u"other.conf"_s)), configurationWithWidth("48"));
    QCOMPARE(window->windowTitle(), u"other.conf[*]"_s);
    QVERIFY(!window->isWindowModified());
    press(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier); // and no name is chosen
    QCOMPARE(window->windowTitle(), u"other.conf[*]"_s);
}

void EditorWindowTest::startsWhereThereIsNoFile_data()
{
    QTest::addColumn<bool>("wanted");
    QTest::newRow("wanted") << true;
    QTest::newRow("not wanted") << false;
}

void EditorWindowTest::startsWhereThereIsNoFile()
{
    QFETCH(const bool, wanted);
    inNextDialog<StarterDialog>([wanted](StarterDialog &dialog) {
        QVERIFY(dialog.findChild<QLabel *>()->text().contains(
            u"There is no configuration %1 yet."_s.arg(TXConfiguration::userFile())));
        QTest::keyClick(&dialog, wanted ? Qt::Key_Return : Qt::Key_Escape);
    });
    openFile(TXConfiguration::userFile());
    QCOMPARE(window->isWindowModified(), wanted);
    QVERIFY(!QFile::exists(file));
    if (wanted) {
        QCOMPARE(window->windowTitle(), u"tavolux.conf[*]"_s);
        save(); // which makes the folders
        QCOMPARE(fileBytes(file), starterConfiguration(42));
    }
    QCOMPARE(dialogs.heard, QStringList());
}

void EditorWindowTest::startsAnew()
{
    open(configuration);
    inNextDialog<StarterDialog>([](StarterDialog &dialog) {
        auto *const model = dialog.findChild<QComboBox *>(u"model"_s);
        auto *const output = dialog.findChild<QLineEdit *>(u"output"_s);
        auto *const width = dialog.findChild<QComboBox *>(u"width"_s);
        auto *const create = dialog.findChild<QPushButton *>();
        QCOMPARE(width->currentText(), u"42"_s);
        QVERIFY(!output->isEnabled()); // of plain text any
        model->setCurrentIndex(model->findData(u"generic-58"_s));
        QCOMPARE(width->currentText(), u"32"_s);
        QCOMPARE(width->count(), 1); // no wider paper has place in it
        output->clear();
        QVERIFY(!create->isEnabled());
        QTest::keyClicks(output, u"a;"_s);
        QVERIFY(!create->isEnabled());
        QTest::keyClick(output, Qt::Key_Backspace);
        auto *const language = dialog.findChild<QComboBox *>(u"language"_s);
        language->setCurrentIndex(language->findData(QString())); // English
        QTest::mouseClick(create, Qt::LeftButton);
    });
    chooseDialog(u"New…"_s);
    QCOMPARE(window->windowTitle(), u"New configuration[*]"_s);
    QCOMPARE(shown(u"tavolux.printers.till.output"_s), u"a"_s);
    QCOMPARE(shown(u"tavolux.doc.paperWidth"_s), u"31"_s); // below centred lines
    QCOMPARE(shown(u"tavolux.language.file"_s), u""_s);
    QCOMPARE(fileBytes(file), configuration);

    dialogs.chosen = home->filePath(u"new.conf"_s);
    save(); // asks for a name
    QCOMPARE(window->windowTitle(), u"new.conf[*]"_s);
    QVERIFY(fileBytes(home->filePath(u"new.conf"_s)).contains("model = generic-58; output = \"a\";"));
}

void EditorWindowTest::opensRecentFiles()
{
    const QString other = home->writeFile(u"other.conf"_s, "tavolux : { };");
    openFile(other);
    open(configuration);
    auto *const fileMenu = qobject_cast<QMenu *>(window->menuBar()->actions().front()->menu());
    Q_EMIT fileMenu->aboutToShow();
    const QList<QAction *> recent = action(u"Open Recent"_s)->menu()->actions();
    QCOMPARE(recent.size(), 2);
    QCOMPARE(recent[0]->text(), file);
    QCOMPARE(recent[1]->text(), other);
    recent[1]->trigger();
    QCOMPARE(window->windowTitle(), u"other.conf[*]"_s);
}

void EditorWindowTest::opensDroppedFiles()
{
    open(configuration);
    change(paperWidth, u"48"_s);
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(home->writeFile(u"other.xml"_s, "<tavolux><a b='c'/></tavolux>"))});
    const auto drop = [&] {
        QDragEnterEvent enter({9, 9}, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(window.get(), &enter);
        QVERIFY(enter.isAccepted());
        QDropEvent event({9, 9}, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(window.get(), &event);
    };
    drop(); // which is cancelled
    QCOMPARE(dialogs.heard, QStringList{u"The changes in %1 are not saved. Save them?"_s.arg(file)});
    QCOMPARE(window->windowTitle(), u"my.conf[*]"_s);
    dialogs.answers << QMessageBox::Discard;
    drop();
    QCOMPARE(window->windowTitle(), u"other.xml[*]"_s);
    QCOMPARE(shown(u"tavolux.a.b"_s), u"c"_s);

    data.setUrls({QUrl(u"https://example.org/my.conf"_s)});
    QDragEnterEvent elsewhere({9, 9}, Qt::CopyAction, &data, Qt::LeftButton, {});
    elsewhere.ignore();
    QApplication::sendEvent(window.get(), &elsewhere);
    QVERIFY(!elsewhere.isAccepted());
}

void EditorWindowTest::keepsItsSize()
{
    open(configuration);
    window->resize(720, 510);
    window->findChild<PreviewPane *>()->toggleViewAction()->trigger();
    QVERIFY(window->close());
    open(configuration);
    QCOMPARE(window->size(), QSize(720, 510));
    QVERIFY(window->findChild<PreviewPane *>()->isHidden());
}

void EditorWindowTest::showsHelpAboutTheSetting()
{
    open(configuration);
    select(u"tavolux.receiptdoc.totalPriceFieldWidth"_s);
    press(Qt::Key_F1);
    const HelpWindow *help = nullptr;
    for (const QWidget *widget : QApplication::topLevelWidgets())
        if (const auto *found = qobject_cast<const HelpWindow *>(widget))
            help = found;
    QVERIFY(help && help->isVisible());
    QCOMPARE(help->textCursor().selectedText(), u"totalPriceFieldWidth"_s);
    QVERIFY(help->textCursor().currentTable());
    QVERIFY(help->toPlainText().startsWith("The configuration"_L1));
}

void EditorWindowTest::followsLinksInHelp()
{
    HelpWindow help;
    help.show();
    Q_EMIT help.anchorClicked(QUrl(u"#settings-of-a-profile"_s));
    QCOMPARE(help.textCursor().block().text(), u"Settings of a profile"_s);
    Q_EMIT help.anchorClicked(QUrl(u"real-printer.md#models"_s));
    QCOMPARE(help.textCursor().block().text(), u"Models"_s);
    help.showSetting(u"drawerPulse"_s);
    QCOMPARE(help.textCursor().selectedText(), u"drawerPulse"_s);
    Q_EMIT help.anchorClicked(QUrl(u"images/editor.png"_s)); // which is no page
    QCOMPARE(help.textCursor().selectedText(), u"drawerPulse"_s);
}

void EditorWindowTest::asksBeforeItCloses_data()
{
    QTest::addColumn<QMessageBox::StandardButton>("answer");
    QTest::addColumn<bool>("typing"); // the value is not even taken over yet
    QTest::addColumn<bool>("open");
    QTest::addColumn<QByteArray>("width");
    QTest::newRow("save") << QMessageBox::Save << false << false << QByteArray("48");
    QTest::newRow("discard") << QMessageBox::Discard << false << false << QByteArray("42");
    QTest::newRow("cancel") << QMessageBox::Cancel << false << true << QByteArray("42");
    QTest::newRow("save while typing") << QMessageBox::Save << true << false << QByteArray("48");
    QTest::newRow("cancel while typing") << QMessageBox::Cancel << true << true << QByteArray("42");
}

void EditorWindowTest::asksBeforeItCloses()
{
    QFETCH(const QMessageBox::StandardButton, answer);
    QFETCH(const bool, typing);
    QFETCH(const QByteArray, width);
    open(configuration);
    if (typing)
        type(paperWidth, u"48"_s);
    else
        change(paperWidth, u"48"_s);
    dialogs.answers << answer;
    press(Qt::Key_Q, Qt::ControlModifier);
    QCOMPARE(dialogs.heard, QStringList{u"The changes in %1 are not saved. Save them?"_s.arg(file)});
    QTEST(window->isVisible(), "open");
    QCOMPARE(fileBytes(file), configurationWithWidth(width));
    QCOMPARE(settings()->currentIndex().data().toString(), u"48"_s);
}

void EditorWindowTest::closesUnasked()
{
    open(configuration);
    QVERIFY(window->close());
    QCOMPARE(dialogs.heard, QStringList());
}

void EditorWindowTest::asksBeforeItReloads_data()
{
    QTest::addColumn<QMessageBox::StandardButton>("answer");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QByteArray>("width");
    QTest::newRow("save") << QMessageBox::Save << u"48"_s << QByteArray("48");
    QTest::newRow("discard") << QMessageBox::Discard << u"42"_s << QByteArray("42");
    QTest::newRow("cancel") << QMessageBox::Cancel << u"48"_s << QByteArray("42");
}

void EditorWindowTest::asksBeforeItReloads()
{
    QFETCH(const QMessageBox::StandardButton, answer);
    QFETCH(const QByteArray, width);
    open(configuration);
    change(paperWidth, u"48"_s);
    dialogs.answers << answer;
    press(Qt::Key_F5);
    QCOMPARE(dialogs.heard, QStringList{u"The changes in %1 are not saved. Save them?"_s.arg(file)});
    QTEST(shown(paperWidth), "value");
    QCOMPARE(fileBytes(file), configurationWithWidth(width));
    QCOMPARE(window->isWindowModified(), answer == QMessageBox::Cancel);
}

void EditorWindowTest::reloadsWhatIsOnDisk()
{
    open(configuration);
    select(paperWidth);
    home->writeFile(u"my.conf"_s, configurationWithWidth("50"));
    press(Qt::Key_F5);
    QCOMPARE(label(u"key"_s), paperWidth); // where the person was
    QCOMPARE(settings()->currentIndex().data().toString(), u"50"_s);
    QVERIFY(!window->isWindowModified());
    QCOMPARE(QApplication::focusWidget(), settings());
    QCOMPARE(dialogs.heard, QStringList());
}

void EditorWindowTest::keepsWhatItHasWhenItCannotReload()
{
    open(configuration);
    change(paperWidth, u"48"_s);
    QVERIFY(QFile::remove(file));
    dialogs.answers << QMessageBox::Discard;
    press(Qt::Key_F5);
    QCOMPARE(dialogs.heard.mid(1),
             QStringList({u"Cannot read %1"_s.arg(file), u"No such file or directory."_s}));
    QCOMPARE(shown(paperWidth), u"48"_s);
    QVERIFY(window->isWindowModified());
}

void EditorWindowTest::asksBeforeItOverwritesAnothersChange_data()
{
    QTest::addColumn<bool>("removed");
    QTest::addColumn<QMessageBox::StandardButton>("answer");
    QTest::newRow("changed, save") << false << QMessageBox::Save;
    QTest::newRow("changed, cancel") << false << QMessageBox::Cancel;
    QTest::newRow("removed, save") << true << QMessageBox::Save;
    QTest::newRow("removed, cancel") << true << QMessageBox::Cancel;
}

void EditorWindowTest::asksBeforeItOverwritesAnothersChange()
{
    QFETCH(const bool, removed);
    QFETCH(const QMessageBox::StandardButton, answer);
    open(configuration);
    change(paperWidth, u"48"_s);
    if (removed)
        QVERIFY(QFile::remove(file));
    else
        home->writeFile(u"my.conf"_s, configurationWithWidth("50"));
    dialogs.answers << answer;
    save();
    QCOMPARE(dialogs.heard, QStringList{u"%1 was changed by another program. Save over it?"_s.arg(file)});
    if (answer == QMessageBox::Save)
        QCOMPARE(fileBytes(file), configurationWithWidth("48"));
    else if (removed)
        QVERIFY(!QFile::exists(file));
    else
        QCOMPARE(fileBytes(file), configurationWithWidth("50"));
    QCOMPARE(window->isWindowModified(), answer == QMessageBox::Cancel);
}

void EditorWindowTest::tellsWhatCannotBeRead_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("reason");
    QTest::newRow("folder") << u"folder"_s << u"Not a regular file."_s;
    QTest::newRow("fifo") << u"fifo"_s << u"Not a regular file."_s;
    QTest::newRow("not well-formed") << u"open.xml"_s
                                     << u"Line 2: this is no well-formed XML, so nothing in it is read: "_s;
    QTest::newRow("declaration")
        << u"declared.xml"_s
        << u"It does not begin with its root element but with a declaration or a comment, so nothing in it is found."_s;
    QTest::newRow("deep") << u"deep.xml"_s
                          << u"Line 1: sections nest deeper than 256, so nothing in the file is read."_s;
}

void EditorWindowTest::tellsWhatCannotBeRead()
{
    QFETCH(const QString, name);
    QFETCH(const QString, reason);
    QDir(home->path()).mkdir(u"folder"_s);
    home->makeFifo(u"fifo"_s);
    home->writeFile(u"open.xml"_s, "<r>\n</s>\n");
    home->writeFile(u"declared.xml"_s, "<?xml version='1.0'?><r k='v'/>");
    home->writeFile(u"deep.xml"_s,
                    "<p:r>" + QByteArray("<s>").repeated(100'000) + QByteArray("</s>").repeated(100'000)
                        + "</p:r>");
    openFile(home->filePath(name));
    QCOMPARE(dialogs.heard.size(), 2);
    QCOMPARE(dialogs.heard.first(), u"Cannot read %1"_s.arg(file));
    QVERIFY2(dialogs.heard.last().startsWith(reason), qPrintable(dialogs.heard.last()));
    QVERIFY(window->close()); // there is nothing to save
}

void EditorWindowTest::tellsWhatCannotBeWritten()
{
    openFile(home->writeFile(u"folder/my.conf"_s, configuration));
    change(paperWidth, u"48"_s);
    QVERIFY(QDir(home->path()).rename(u"folder"_s, u"elsewhere"_s));
    dialogs.answers << QMessageBox::Save;
    save();
    QCOMPARE(dialogs.heard.mid(1),
             QStringList({u"Cannot write %1"_s.arg(file), u"No such file or directory."_s,
                          u"The changes are still in this window."_s}));
    QVERIFY(window->isWindowModified());
    QCOMPARE(shown(paperWidth), u"48"_s);
    QCOMPARE(fileBytes(home->filePath(u"elsewhere/my.conf"_s)), configuration);

    QVERIFY(QDir(home->path()).rename(u"elsewhere"_s, u"folder"_s));
    save(); // the file is the one that was read, so nothing is asked
    QCOMPARE(fileBytes(file), configurationWithWidth("48"));
}

void EditorWindowTest::losesNothingOnAFullDisk()
{
    open(configuration);
    change(paperWidth, u"48"_s);
    {
        const FileSizeLimit full(20);
        save();
    }
    QCOMPARE(dialogs.heard.value(0), u"Cannot write %1"_s.arg(file));
    QVERIFY(window->isWindowModified());
    QCOMPARE(fileBytes(file), configuration);
    save();
    QCOMPARE(fileBytes(file), configurationWithWidth("48"));
}

void EditorWindowTest::doesNotWaitForAPipe()
{
    open(configuration);
    change(paperWidth, u"48"_s);
    QVERIFY(QFile::remove(file));
    home->makeFifo(u"my.conf"_s); // which nobody reads
    dialogs.answers << QMessageBox::Save;
    save();
    QCOMPARE(dialogs.heard,
             QStringList({u"%1 was changed by another program. Save over it?"_s.arg(file),
                          u"Cannot write %1"_s.arg(file), u"Not a regular file."_s,
                          u"The changes are still in this window."_s}));
    QVERIFY(window->isWindowModified());
}

void EditorWindowTest::opensAndSavesANameOfBytes()
{
    const QByteArray path = QFile::encodeName(home->path()) + "/b\xE4r.conf";
    QCOMPARE(std::rename(QFile::encodeName(home->writeFile(u"my.conf"_s, configuration)).constData(),
                         path.constData()),
             0);
    openFile(fileNameFromBytes(path));
    change(paperWidth, u"48"_s);
    save();
    QCOMPARE(dialogs.heard, QStringList());
    QCOMPARE(readRegularFile(fileNameFromBytes(path)).bytes, configurationWithWidth("48"));
    QCOMPARE(unlink(path.constData()), 0); // which the test's own folder could not
}

void EditorWindowTest::saysWhatOfAFileIsNotKept()
{
    if (geteuid() != 0)
        QSKIP("only root can leave files to others");
    open(configuration);
    change(paperWidth, u"48"_s);
    const QByteArray folder = QFile::encodeName(home->path());
    for (const QByteArray &shared : {folder, folder + "/..", QFile::encodeName(file)})
        QCOMPARE(chmod(shared.constData(), 0777), 0);
    constexpr uid_t nobody = 65534;
    setfsuid(nobody);
    save();
    setfsuid(0);
    QCOMPARE(dialogs.heard, QStringList());
    QCOMPARE(window->statusBar()->currentMessage(),
             u"Saved, but its owner could not be kept: Operation not permitted."_s);
    QCOMPARE(fileBytes(file), configurationWithWidth("48"));
}

void EditorWindowTest::speaksTheLanguageOfThePerson_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("receipts");
    QTest::addColumn<QString>("explanation");
    QTest::newRow("English") << u"en"_s << u"Receipts"_s << u"Whether the order's table is printed."_s;
    QTest::newRow("German") << u"de"_s << u"Quittungen"_s << u"Ob der Tisch der Bestellung gedruckt wird."_s;
    QTest::newRow("Spanish") << u"es"_s << u"Recibos"_s << u"Si se imprime la mesa del pedido."_s;
    QTest::newRow("French") << u"fr"_s << u"Reçus"_s << u"Si la table de la commande est imprimée."_s;
    QTest::newRow("Italian") << u"it"_s << u"Ricevute"_s << u"Se si stampa il tavolo dell’ordine."_s;
}

void EditorWindowTest::speaksTheLanguageOfThePerson()
{
    QFETCH(const QString, language);
    const QLocale before;
    QLocale::setDefault(QLocale(language));
    QTranslator translator;
    QCOMPARE(loadInterface(translator, {QStringLiteral(TAVOLUX_BINARY_DIR "/translations")}),
             language != "en"_L1);
    QCoreApplication::installTranslator(&translator);
    open(configuration);
    select(u"tavolux.receiptdoc.printTable"_s);
    QTEST(sections()->currentIndex().data().toString(), "receipts");
    QTEST(label(u"explanation"_s), "explanation");

    // Each letter that is pressed chooses one thing.
    QList<QList<QAction *>> menus{window->menuBar()->actions()};
    for (const QAction *menu : window->menuBar()->actions())
        menus << menu->menu()->actions();
    for (const QList<QAction *> &menu : menus) {
        QStringList keys;
        for (const QAction *entry : menu)
            if (!entry->isSeparator())
                keys << QKeySequence::mnemonic(entry->text()).toString();
        QVERIFY2(!keys.contains(QString()), qPrintable(keys.join(u' ')));
        QVERIFY2(QSet<QString>(keys.begin(), keys.end()).size() == keys.size(), qPrintable(keys.join(u' ')));
    }
    window.reset();
    QCoreApplication::removeTranslator(&translator);
    QLocale::setDefault(before);
}

void EditorWindowTest::saysWhatIsWrongInTheLanguageOfThePerson_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QStringList>("findings");
    QTest::addColumn<QString>("refusal");
    QTest::newRow("English")
        << u"en"_s
        << QStringList{u"Line 9: \"printTime\" is \"yes\", neither \"true\" nor \"false\", so it is off"_s,
                       u"Line 10: \"mystery\" is no setting of \"tavolux.receiptdoc\" that is ever read"_s,
                       u"Line 12: \"columns\" is \"300\", not a number from 1 to 255"_s}
        << u"the root of the file stays"_s;
    QTest::newRow("German")
        << u"de"_s
        << QStringList{u"Zeile 9: \"printTime\" ist \"yes\", weder \"true\" noch \"false\", und daher aus"_s,
                       u"Zeile 10: \"mystery\" ist keine Einstellung von \"tavolux.receiptdoc\", "
                       "die je gelesen wird"_s,
                       u"Zeile 12: \"columns\" ist \"300\"; erwartet wird: eine Zahl von 1 bis 255"_s}
        << u"die Wurzel der Datei bleibt"_s;
}

void EditorWindowTest::saysWhatIsWrongInTheLanguageOfThePerson()
{
    QFETCH(const QString, language);
    const QLocale before;
    QLocale::setDefault(QLocale(language));
    QTranslator translator;
    QCOMPARE(loadInterface(translator, {QStringLiteral(TAVOLUX_BINARY_DIR "/translations")}),
             language != "en"_L1);
    QCoreApplication::installTranslator(&translator);
    open(configurationWith("output = x;", "output = x; columns = 300;"));
    const auto *const list = window->findChild<FindingsPane *>()->findChild<QListWidget *>();
    QStringList found;
    for (int row = 0; row < list->count(); ++row)
        found << list->item(row)->text();
    const QString refusal = libconfig::ConfigurationText(configuration, u"cfg"_s)
                                .remove(libconfig::ConfigurationText::wholeFile)
                                .fault;
    window.reset();
    QCoreApplication::removeTranslator(&translator);
    QLocale::setDefault(before);
    QTEST(found, "findings");
    QTEST(refusal, "refusal");
}

void EditorWindowTest::tellsAboutItself()
{
    open(configuration);
    QString text;
    inNextDialog<QMessageBox>([&text](QMessageBox &box) {
        text = box.text();
        box.accept();
    });
    chooseDialog(u"About"_s);
    QVERIFY2(text.startsWith("Tavolux Configuration " TAVOLUX_VERSION "\n"_L1), qPrintable(text));
}

void EditorWindowTest::asksInMessageBoxes()
{
    file = home->writeFile(u"my.conf"_s, configuration);
    MessageBoxes boxes;
    window = std::make_unique<EditorWindow>(boxes);
    window->show();
    window->open(file);
    window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(window.get()));
    change(u"tavolux.printers.till.cut"_s, u"none"_s);
    change(u"tavolux.printers.till.logo"_s, u"/nowhere.png"_s);

    // Each box that opens is answered, in this order: close with saving, but not with the findings.
    QList<QMessageBox::StandardButton> answers{QMessageBox::Save, QMessageBox::Cancel};
    QStringList texts;
    QTimer answering;
    connect(&answering, &QTimer::timeout, this, [&] {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!box || !box->isVisible())
            return;
        texts << box->text();
        QTest::mouseClick(box->button(answers.takeFirst()), Qt::LeftButton);
    });
    answering.start(0);
    QVERIFY(!window->close());
    QCOMPARE(texts,
             QStringList({u"The changes in %1 are not saved. Save them?"_s.arg(file),
                          u"Something is wrong with the changes. Save all the same?"_s}));
    QCOMPARE(fileBytes(file), configuration);
}

void EditorWindowTest::cutsLongExplanationsInMessageBoxes()
{
    QStringList lines;
    for (int i = 1; i <= 12; ++i)
        lines << u"line %1"_s.arg(i);
    QString shown;
    QString all;
    QTimer answering;
    connect(&answering, &QTimer::timeout, this, [&] {
        if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            box && box->isVisible()) {
            shown = box->informativeText();
            all = box->detailedText();
            QTest::keyClick(box, Qt::Key_Escape);
        }
    });
    answering.start(0);
    MessageBoxes boxes;
    QCOMPARE(boxes.ask(u"Question?"_s, lines, QMessageBox::Save | QMessageBox::Cancel), QMessageBox::Cancel);
    QCOMPARE(shown, lines.first(10).join(u'\n') + u"\n… and 2 more."_s);
    QCOMPARE(all, lines.join(u'\n'));
    boxes.tell(u"Message"_s, lines.first(10));
    QCOMPARE(shown, lines.first(10).join(u'\n'));
}

QTEST_MAIN(EditorWindowTest)
#include "editor_window_test.moc"
