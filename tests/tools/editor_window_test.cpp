#include "editor_window.h"

#include "config.h"
#include "dialogs.h"
#include "file_name.h"
#include "read_file.h"
#include "temporary_home.h"
#include "tx_configuration.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStatusBar>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>

#include <cstdio>
#include <memory>

#include <sys/fsuid.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

// Answers as told and notes what was asked. A question that nobody expects is cancelled.
class ScriptedDialogs : public Dialogs
{
public:
    QMessageBox::StandardButton ask(const QString &question, const QStringList &details,
                                    QMessageBox::StandardButtons buttons) override
    {
        heard << question << details;
        const auto answer = answers.isEmpty() ? QMessageBox::Cancel : answers.takeFirst();
        if (!buttons.testFlag(answer))
            qFatal("there is no such button");
        return answer;
    }

    void tell(const QString &message, const QStringList &details) override { heard << message << details; }

    QStringList heard;
    QList<QMessageBox::StandardButton> answers;
};

const QByteArray configuration = "r: \n"
                                 "{\n"
                                 "    language: \n"
                                 "    {\n"
                                 "        file = \"/\";\n"
                                 "    };\n"
                                 "\n"
                                 "    receipt: \n"
                                 "    {\n"
                                 "        paperWidth = \"42\";\n"
                                 "        printHeader = \"true\";\n"
                                 "    };\n"
                                 "\n"
                                 "};\n"
                                 "\n";

QByteArray configurationWithWidth(const QByteArray &width)
{
    return QByteArray(configuration).replace("42", width);
}

} // namespace

class EditorWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void showsTheFile();
    void editsAndSavesByMouseAndKeyboard();
    void editsByKey_data();
    void editsByKey();
    void leavesTheValueOnEscape();
    void namesCannotBeEdited();
    void savesWhatIsStillBeingTyped();
    void isUnchangedWhenTheOldValueIsBack();
    void leavesAnUnchangedFileAlone();
    void savesXml();
    void opensAndClosesSectionsByReturn();
    void activatesByDoubleClick();
    void columnFitsItsContent();
    void tellsTheKey();

    void asksBeforeItCloses_data();
    void asksBeforeItCloses();
    void closesUnasked();
    void staysOpenWhenSavingFails();
    void asksBeforeItReloads_data();
    void asksBeforeItReloads();
    void reloadsWhatIsOnDisk();
    void keepsTheTreeWhenItCannotReload();

    void asksBeforeASectionMoves();
    void asksBeforeALaterSectionIsLost();
    void asksBeforeAValueChanges();
    void asksBeforeUnshownTextIsLost_data();
    void asksBeforeUnshownTextIsLost();
    void asksBeforeItOverwritesAnothersChange_data();
    void asksBeforeItOverwritesAnothersChange();

    void findsByTyping();
    void saysWhenNothingIsFound();
    void keepsFindingAfterReload();
    void focusMovesByTab();

    void tellsWhatCannotBeRead_data();
    void tellsWhatCannotBeRead();
    void tellsHowToBeginAConfiguration();
    void tellsWhatCannotBeWritten();
    void doesNotWaitForAPipe();
    void opensAndSavesANameOfBytes();
    void saysWhatOfAFileIsNotKept();
    void asksInMessageBoxes();
    void cutsLongExplanationsInMessageBoxes();

private:
    void open(const QByteArray &text, const QString &type = u"cfg"_s);
    void openFile(const QString &path, const QString &type = u"cfg"_s);
    QTreeWidget *view() const { return window->findChild<QTreeWidget *>(); }
    QLineEdit *findField() const { return window->findChild<QLineEdit *>(u"find"_s); }
    QLineEdit *valueField() const { return view()->viewport()->findChild<QLineEdit *>(); }
    QTreeWidgetItem *value(const QString &key) const;
    void doubleClick(const QTreeWidgetItem *item) const;
    void type(const QString &key, const QString &text);
    void change(const QString &key, const QString &text);
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const;

    std::unique_ptr<TemporaryHome> home;
    QString file;
    ScriptedDialogs dialogs;
    std::unique_ptr<EditorWindow> window;
};

void EditorWindowTest::init()
{
    home = std::make_unique<TemporaryHome>();
    home->enter();
    dialogs.heard.clear();
    dialogs.answers.clear();
}

void EditorWindowTest::cleanup()
{
    window.reset();
    QCOMPARE(dialogs.answers.size(), 0); // each prepared answer was asked for
}

void EditorWindowTest::openFile(const QString &path, const QString &type)
{
    file = path;
    window = std::make_unique<EditorWindow>(path, type, dialogs);
    window->show();
    window->open();
    window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(window.get()));
}

void EditorWindowTest::open(const QByteArray &text, const QString &type)
{
    openFile(home->writeFile(u"my.conf"_s, text), type);
}

QTreeWidgetItem *EditorWindowTest::value(const QString &key) const
{
    for (QTreeWidgetItemIterator item(view()); *item; ++item)
        if (valueItem(*item) == *item && keyOf(*item) == key)
            return *item;
    qFatal("there is no value %s", qPrintable(key));
}

void EditorWindowTest::doubleClick(const QTreeWidgetItem *item) const
{
    view()->scrollToItem(item);
    const QPoint place = view()->visualItemRect(item).topLeft() + QPoint(4, 4);
    QTest::mouseClick(view()->viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(view()->viewport(), Qt::LeftButton, {}, place);
}

// Double-clicks the value and types over it; the field stays open.
void EditorWindowTest::type(const QString &key, const QString &text)
{
    doubleClick(value(key));
    QVERIFY(valueField());
    QTest::keyClicks(valueField(), text);
}

void EditorWindowTest::change(const QString &key, const QString &text)
{
    type(key, text);
    QTest::keyClick(valueField(), Qt::Key_Return);
    QTRY_COMPARE(value(key)->text(0), text);
    QTRY_VERIFY(!valueField());
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
    QCOMPARE(view()->topLevelItemCount(), 1);
    QCOMPARE(view()->topLevelItem(0)->text(0), file);
    QCOMPARE(value(u"r.receipt.paperWidth"_s)->text(0), u"42"_s);
    QCOMPARE(QApplication::focusWidget(), view());
}

void EditorWindowTest::editsAndSavesByMouseAndKeyboard()
{
    open(configuration);
    change(u"r.receipt.paperWidth"_s, u"48"_s);
    QVERIFY(window->isWindowModified());
    QCOMPARE(fileBytes(file), configuration);

    press(Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(fileBytes(file), configurationWithWidth("48"));
    QVERIFY(!window->isWindowModified());
    QCOMPARE(value(u"r.receipt.paperWidth"_s)->text(0), u"48"_s);

    // The file as it is now is the one that the next change is compared with.
    change(u"r.receipt.paperWidth"_s, u"40"_s);
    press(Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(fileBytes(file), configurationWithWidth("40"));
    QCOMPARE(dialogs.heard, QStringList());
}

void EditorWindowTest::editsByKey_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<bool>("onName");
    QTest::newRow("F2 on the value") << Qt::Key_F2 << false;
    QTest::newRow("F2 on the name") << Qt::Key_F2 << true;
    QTest::newRow("Return on the value") << Qt::Key_Return << false;
    QTest::newRow("Return on the name") << Qt::Key_Return << true;
}

void EditorWindowTest::editsByKey()
{
    QFETCH(const Qt::Key, key);
    QFETCH(const bool, onName);
    open(configuration);
    QTreeWidgetItem *item = value(u"r.receipt.paperWidth"_s);
    view()->setCurrentItem(onName ? item->parent() : item);
    press(key);
    QVERIFY(valueField());
    QTest::keyClicks(valueField(), u"48"_s);
    QTest::keyClick(valueField(), Qt::Key_Return);
    QTRY_COMPARE(item->text(0), u"48"_s);
    QTRY_VERIFY(!valueField()); // Return ends editing and does not begin it anew
    QCOMPARE(item->parent()->text(0), u"paperWidth"_s);
    QCOMPARE(view()->currentItem(), item);
}

void EditorWindowTest::leavesTheValueOnEscape()
{
    open(configuration);
    type(u"r.receipt.paperWidth"_s, u"48"_s);
    QTest::keyClick(valueField(), Qt::Key_Escape);
    QTRY_VERIFY(!valueField());
    QCOMPARE(value(u"r.receipt.paperWidth"_s)->text(0), u"42"_s);
    QVERIFY(!window->isWindowModified());
}

void EditorWindowTest::namesCannotBeEdited()
{
    open(configuration);
    view()->setCurrentItem(view()->topLevelItem(0)->child(0));
    press(Qt::Key_F2);
    QVERIFY(!valueField());
}

void EditorWindowTest::savesWhatIsStillBeingTyped()
{
    open(configuration);
    type(u"r.receipt.paperWidth"_s, u"48"_s);
    QTest::keyClick(valueField(), Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(fileBytes(file), configurationWithWidth("48"));
}

void EditorWindowTest::isUnchangedWhenTheOldValueIsBack()
{
    open(configuration);
    change(u"r.receipt.paperWidth"_s, u"48"_s);
    QVERIFY(window->isWindowModified());
    change(u"r.receipt.paperWidth"_s, u"42"_s);
    QVERIFY(!window->isWindowModified());
}

void EditorWindowTest::leavesAnUnchangedFileAlone()
{
    const QByteArray untidy = "r:{b=2;a=1;};s:{c=3;};";
    open(untidy);
    press(Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(window->statusBar()->currentMessage(), u"There is no change to save."_s);
    QCOMPARE(fileBytes(file), untidy);
    QCOMPARE(dialogs.heard, QStringList());
}

void EditorWindowTest::savesXml()
{
    open("<r><s k='v'/></r>", u"xml"_s);
    change(u"r.s.k"_s, u"5 > 3;"_s);
    press(Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(fileBytes(file), QByteArray("\n<r>\n\n    <s\n        k = \"5 > 3;\">\n    </s>\n</r>\n"));
}

void EditorWindowTest::opensAndClosesSectionsByReturn()
{
    open(configuration);
    QTreeWidgetItem *receipt = view()->topLevelItem(0)->child(0)->child(1);
    view()->setCurrentItem(receipt);
    QVERIFY(!receipt->isExpanded());
    press(Qt::Key_Return);
    QVERIFY(receipt->isExpanded());
    QVERIFY(receipt->child(0)->isExpanded()); // so the values are seen at once
    press(Qt::Key_Return);
    QVERIFY(!receipt->isExpanded());
}

void EditorWindowTest::activatesByDoubleClick()
{
    open(configuration);
    QTreeWidgetItem *receipt = view()->topLevelItem(0)->child(0)->child(1);
    doubleClick(receipt);
    QVERIFY(receipt->isExpanded());
    QTreeWidgetItem *name = value(u"r.receipt.paperWidth"_s)->parent();
    doubleClick(name); // which edits the value
    QVERIFY(valueField());
    QCOMPARE(valueField()->text(), u"42"_s);
    QVERIFY(name->isExpanded());
}

void EditorWindowTest::columnFitsItsContent()
{
    open(configuration);
    change(u"r.receipt.paperWidth"_s, QString(200, u'W'));
    const int textWidth = view()->fontMetrics().horizontalAdvance(QString(200, u'W'));
    QTRY_VERIFY(view()->header()->sectionSize(0) > textWidth);
    change(u"r.receipt.paperWidth"_s, u"42"_s);
    QTRY_VERIFY(view()->header()->sectionSize(0) < textWidth);
}

void EditorWindowTest::tellsTheKey()
{
    open(configuration);
    const auto *label = window->findChild<QLabel *>(u"key"_s);
    view()->setCurrentItem(value(u"r.receipt.paperWidth"_s));
    QCOMPARE(label->text(), u"r.receipt.paperWidth"_s);
    view()->setCurrentItem(view()->topLevelItem(0)->child(0)->child(0));
    QCOMPARE(label->text(), u"r.language"_s);
    view()->setCurrentItem(view()->topLevelItem(0));
    QCOMPARE(label->text(), QString());
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
        type(u"r.receipt.paperWidth"_s, u"48"_s);
    else
        change(u"r.receipt.paperWidth"_s, u"48"_s);
    dialogs.answers << answer;
    press(Qt::Key_Q, Qt::ControlModifier);
    QCOMPARE(dialogs.heard, QStringList{u"The changes in %1 are not saved. Save them?"_s.arg(file)});
    QTEST(window->isVisible(), "open");
    QCOMPARE(fileBytes(file), configurationWithWidth(width));
    QCOMPARE(value(u"r.receipt.paperWidth"_s)->text(0), u"48"_s);
}

void EditorWindowTest::closesUnasked()
{
    open(configuration);
    QVERIFY(window->close());
    QCOMPARE(dialogs.heard, QStringList());
}

void EditorWindowTest::staysOpenWhenSavingFails()
{
    open(configuration);
    change(u"r.receipt.paperWidth"_s, u"4;8"_s);
    dialogs.answers << QMessageBox::Save << QMessageBox::Cancel;
    QVERIFY(!window->close());
    QVERIFY(window->isWindowModified());
    QCOMPARE(fileBytes(file), configuration);
}

void EditorWindowTest::asksBeforeItReloads_data()
{
    QTest::addColumn<QMessageBox::StandardButton>("answer");
    QTest::addColumn<QString>("shown");
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
    change(u"r.receipt.paperWidth"_s, u"48"_s);
    dialogs.answers << answer;
    press(Qt::Key_F5);
    QCOMPARE(dialogs.heard, QStringList{u"The changes in %1 are not saved. Save them?"_s.arg(file)});
    QTEST(value(u"r.receipt.paperWidth"_s)->text(0), "shown");
    QCOMPARE(fileBytes(file), configurationWithWidth(width));
    QCOMPARE(window->isWindowModified(), answer == QMessageBox::Cancel);
}

void EditorWindowTest::reloadsWhatIsOnDisk()
{
    open(configuration);
    home->writeFile(u"my.conf"_s, configurationWithWidth("50"));
    press(Qt::Key_F5);
    QCOMPARE(value(u"r.receipt.paperWidth"_s)->text(0), u"50"_s);
    QVERIFY(!window->isWindowModified());
    QCOMPARE(QApplication::focusWidget(), view());
    QCOMPARE(dialogs.heard, QStringList());
}

void EditorWindowTest::keepsTheTreeWhenItCannotReload()
{
    open(configuration);
    change(u"r.receipt.paperWidth"_s, u"48"_s);
    QVERIFY(QFile::remove(file));
    dialogs.answers << QMessageBox::Discard;
    press(Qt::Key_F5);
    QCOMPARE(dialogs.heard.mid(1),
             QStringList({u"Cannot read %1"_s.arg(file), u"No such file or directory."_s}));
    QCOMPARE(value(u"r.receipt.paperWidth"_s)->text(0), u"48"_s);
    QVERIFY(window->isWindowModified());
}

void EditorWindowTest::asksBeforeASectionMoves()
{
    const QByteArray text = "r : { s1 : { a = 1; }; s2 : { b = 2; t : { c = 3; }; }; };";
    open(text);
    change(u"r.s1.a"_s, u"9"_s);
    dialogs.answers << QMessageBox::Cancel;
    press(Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(dialogs.heard,
             QStringList({u"Saving changes more than the values shown. Save all the same?"_s,
                          u"The section r.s2.t moves into r.s1."_s}));
    QCOMPARE(fileBytes(file), text);
    QVERIFY(window->isWindowModified());

    dialogs.answers << QMessageBox::Save;
    press(Qt::Key_S, Qt::ControlModifier);
    QVERIFY(!window->isWindowModified());
    const libconfig::Config saved(file, u"cfg"_s);
    QCOMPARE(saved.lookup(u"r.s1.a"_s), u"9"_s);
    QCOMPARE(saved.lookup(u"r.s1.t.c"_s), u"3"_s);
    QCOMPARE(value(u"r.s1.t.c"_s)->text(0), u"3"_s); // shown where it is now
}

void EditorWindowTest::asksBeforeALaterSectionIsLost()
{
    open("s1 : { a = 1; }; s2 : { b = 2; };");
    change(u"s1.a"_s, u"9"_s);
    dialogs.answers << QMessageBox::Save;
    press(Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(dialogs.heard.value(1),
             u"The section s2 is lost: only the first section at the top is saved."_s);
    QCOMPARE(fileBytes(file), QByteArray("s1: \n{\n    a = \"9\";\n};\n\n"));
    QCOMPARE(view()->topLevelItem(0)->childCount(), 1);
}

void EditorWindowTest::asksBeforeAValueChanges()
{
    open(configuration);
    change(u"r.language.file"_s, u"a;b"_s);
    dialogs.answers << QMessageBox::Save;
    press(Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(dialogs.heard.mid(1), QStringList{u"The value of r.language.file, \"a;b\", becomes \"a\"."_s});
    QCOMPARE(value(u"r.language.file"_s)->text(0), u"a"_s);
    QVERIFY(!window->isWindowModified());
}

void EditorWindowTest::asksBeforeUnshownTextIsLost_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("after a brace too many")
        << u"cfg"_s << QByteArray("r : { s : { k = v; }; }; }; t : { l = w; };");
    QTest::newRow("comment in xml") << u"xml"_s << QByteArray("<r><!-- note --><s k='v'/></r>");
}

void EditorWindowTest::asksBeforeUnshownTextIsLost()
{
    QFETCH(const QString, kind);
    QFETCH(const QByteArray, text);
    open(text, kind);
    change(u"r.s.k"_s, u"w"_s);
    press(Qt::Key_S, Qt::ControlModifier); // cancelled
    QCOMPARE(
        dialogs.heard.mid(1),
        QStringList{u"Text of the file that is not shown is lost: only sections and settings are saved."_s});
    QCOMPARE(fileBytes(file), text);

    // What was lost once is not asked about again.
    dialogs.answers << QMessageBox::Save;
    press(Qt::Key_S, Qt::ControlModifier);
    dialogs.heard.clear();
    change(u"r.s.k"_s, u"x"_s);
    press(Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(dialogs.heard, QStringList());
    QVERIFY(!window->isWindowModified());
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
    change(u"r.receipt.paperWidth"_s, u"48"_s);
    if (removed)
        QVERIFY(QFile::remove(file));
    else
        home->writeFile(u"my.conf"_s, configurationWithWidth("50"));
    dialogs.answers << answer;
    press(Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(dialogs.heard, QStringList{u"%1 was changed by another program. Save over it?"_s.arg(file)});
    if (answer == QMessageBox::Save)
        QCOMPARE(fileBytes(file), configurationWithWidth("48"));
    else if (removed)
        QVERIFY(!QFile::exists(file));
    else
        QCOMPARE(fileBytes(file), configurationWithWidth("50"));
    QCOMPARE(window->isWindowModified(), answer == QMessageBox::Cancel);
}

void EditorWindowTest::findsByTyping()
{
    open(configuration);
    press(Qt::Key_F, Qt::ControlModifier);
    QCOMPARE(QApplication::focusWidget(), findField());
    QTest::keyClicks(findField(), u"HEADER"_s);
    QTreeWidgetItem *match = value(u"r.receipt.printHeader"_s);
    QCOMPARE(view()->currentItem(), match->parent());
    QVERIFY(value(u"r.receipt.paperWidth"_s)->parent()->isHidden());
    QVERIFY(match->parent()->parent()->isExpanded());

    // From the field to the value and back to the tree as it was, without the mouse.
    press(Qt::Key_Return);
    QCOMPARE(QApplication::focusWidget(), view());
    press(Qt::Key_F2);
    QTest::keyClicks(valueField(), u"false"_s);
    QTest::keyClick(valueField(), Qt::Key_Return);
    QTRY_COMPARE(match->text(0), u"false"_s);
    press(Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(fileBytes(file), QByteArray(configuration).replace("true", "false")); // hidden settings as well
    press(Qt::Key_F, Qt::ControlModifier);
    press(Qt::Key_Escape);
    QCOMPARE(findField()->text(), QString());
    QCOMPARE(QApplication::focusWidget(), view());
    QVERIFY(!value(u"r.receipt.paperWidth"_s)->parent()->isHidden());
}

void EditorWindowTest::saysWhenNothingIsFound()
{
    open(configuration);
    press(Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(findField(), u"headers"_s);
    QCOMPARE(window->statusBar()->currentMessage(), u"Nothing found."_s);
    QCOMPARE(view()->currentItem(), nullptr); // nothing that could be edited unseen
    QTest::keyClick(findField(), Qt::Key_Backspace);
    QCOMPARE(window->statusBar()->currentMessage(), QString());
    QCOMPARE(view()->currentItem(), value(u"r.receipt.printHeader"_s)->parent());
}

void EditorWindowTest::keepsFindingAfterReload()
{
    open(configuration);
    press(Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(findField(), u"header"_s);
    press(Qt::Key_F5);
    QCOMPARE(QApplication::focusWidget(), findField());
    QVERIFY(value(u"r.receipt.paperWidth"_s)->parent()->isHidden());
    QVERIFY(!value(u"r.receipt.printHeader"_s)->parent()->isHidden());
}

void EditorWindowTest::focusMovesByTab()
{
    open(configuration);
    press(Qt::Key_F5); // a view made anew keeps its place
    press(Qt::Key_F, Qt::ControlModifier);
    press(Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), view());
    press(Qt::Key_Tab); // into the preview
    QCOMPARE(QApplication::focusWidget()->objectName(), u"documents"_s);
}

void EditorWindowTest::tellsWhatCannotBeRead_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("reason");
    QTest::newRow("missing") << u"missing"_s << u"cfg"_s << u"No such file or directory."_s;
    QTest::newRow("folder") << u"folder"_s << u"cfg"_s << u"Not a regular file."_s;
    QTest::newRow("empty") << u"empty"_s << u"cfg"_s << u"It holds no setting."_s;
    QTest::newRow("missing xml") << u"missing"_s << u"xml"_s << u"No such file or directory."_s;
    QTest::newRow("not well-formed") << u"open.xml"_s << u"xml"_s
                                     << u"Line 2: this is no well-formed XML, so nothing in it is read: "_s;
    QTest::newRow("declaration")
        << u"declared.xml"_s << u"xml"_s
        << u"It must begin with its root element: after a declaration or a comment nothing is found."_s;
    QTest::newRow("deep") << u"deep.xml"_s << u"xml"_s
                          << u"Line 1: sections nest deeper than 256, so nothing in the file is read."_s;
}

void EditorWindowTest::tellsWhatCannotBeRead()
{
    QFETCH(const QString, name);
    QFETCH(const QString, type);
    QFETCH(const QString, reason);
    QDir(home->path()).mkdir(u"folder"_s);
    home->writeFile(u"empty"_s, " \n");
    home->writeFile(u"open.xml"_s, "<r>\n</s>\n");
    home->writeFile(u"declared.xml"_s, "<?xml version='1.0'?><r k='v'/>");
    home->writeFile(u"deep.xml"_s,
                    "<p:r>" + QByteArray("<s>").repeated(100'000) + QByteArray("</s>").repeated(100'000)
                        + "</p:r>");
    openFile(home->filePath(name), type);
    QCOMPARE(dialogs.heard.size(), 2);
    QCOMPARE(dialogs.heard.first(), u"Cannot read %1"_s.arg(file));
    QVERIFY2(dialogs.heard.last().startsWith(reason), qPrintable(dialogs.heard.last()));

    // There is nothing to save, so nothing is overwritten or created.
    press(Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(QFile::exists(file), name != "missing"_L1);
    QVERIFY(name != "declared.xml"_L1 || fileBytes(file) == "<?xml version='1.0'?><r k='v'/>");
    QVERIFY(window->close());
}

void EditorWindowTest::tellsHowToBeginAConfiguration()
{
    openFile(TXConfiguration::userFile());
    QCOMPARE(dialogs.heard,
             QStringList({u"Cannot read %1"_s.arg(file), u"No such file or directory."_s,
                          u"The command “tavolux-config init” writes a configuration to start from."_s}));
}

void EditorWindowTest::tellsWhatCannotBeWritten()
{
    openFile(home->writeFile(u"folder/my.conf"_s, configuration));
    change(u"r.receipt.paperWidth"_s, u"48"_s);
    QVERIFY(QDir(home->path()).rename(u"folder"_s, u"elsewhere"_s));
    dialogs.answers << QMessageBox::Save;
    press(Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(dialogs.heard.mid(1),
             QStringList({u"Cannot write %1"_s.arg(file), u"No such file or directory."_s,
                          u"The changes are still in this window."_s}));
    QVERIFY(window->isWindowModified());
    QCOMPARE(value(u"r.receipt.paperWidth"_s)->text(0), u"48"_s);
    QCOMPARE(fileBytes(home->filePath(u"elsewhere/my.conf"_s)), configuration);

    QVERIFY(QDir(home->path()).rename(u"elsewhere"_s, u"folder"_s));
    press(Qt::Key_S, Qt::ControlModifier); // the file is the one that was read, so nothing is asked
    QCOMPARE(fileBytes(file), configurationWithWidth("48"));
}

void EditorWindowTest::doesNotWaitForAPipe()
{
    open(configuration);
    change(u"r.receipt.paperWidth"_s, u"48"_s);
    QVERIFY(QFile::remove(file));
    home->makeFifo(u"my.conf"_s); // which nobody reads
    dialogs.answers << QMessageBox::Save;
    press(Qt::Key_S, Qt::ControlModifier);
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
    change(u"r.receipt.paperWidth"_s, u"48"_s);
    press(Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(dialogs.heard, QStringList());
    QCOMPARE(readRegularFile(fileNameFromBytes(path)).bytes, configurationWithWidth("48"));
    QCOMPARE(unlink(path.constData()), 0); // which the test's own folder could not
}

void EditorWindowTest::saysWhatOfAFileIsNotKept()
{
    if (geteuid() != 0)
        QSKIP("only root can leave files to others");
    openFile(home->writeFile(u"my.conf"_s, configuration));
    change(u"r.receipt.paperWidth"_s, u"48"_s);
    const QByteArray folder = QFile::encodeName(home->path());
    for (const QByteArray &shared : {folder, folder + "/..", QFile::encodeName(file)})
        QCOMPARE(chmod(shared.constData(), 0777), 0);
    constexpr uid_t nobody = 65534;
    setfsuid(nobody);
    press(Qt::Key_S, Qt::ControlModifier);
    setfsuid(0);
    QCOMPARE(dialogs.heard, QStringList());
    QCOMPARE(window->statusBar()->currentMessage(),
             u"Saved, but its owner could not be kept: Operation not permitted."_s);
    QCOMPARE(fileBytes(file), configurationWithWidth("48"));
}

void EditorWindowTest::asksInMessageBoxes()
{
    file = home->writeFile(u"my.conf"_s, configuration);
    MessageBoxes boxes;
    window = std::make_unique<EditorWindow>(file, u"cfg"_s, boxes);
    window->show();
    window->open();
    window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(window.get()));
    change(u"r.language.file"_s, u"a;b"_s);

    // Each box that opens is answered, in this order: close with saving, but not with the cut value.
    QList<QMessageBox::StandardButton> answers{QMessageBox::Save, QMessageBox::Cancel};
    QStringList texts;
    QTimer answering;
    connect(&answering, &QTimer::timeout, this, [&] {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!box || !box->isVisible())
            return;
        texts << box->text() << box->informativeText();
        QTest::mouseClick(box->button(answers.takeFirst()), Qt::LeftButton);
    });
    answering.start(0);
    QVERIFY(!window->close());
    const QStringList expected{u"The changes in %1 are not saved. Save them?"_s.arg(file), QString(),
                               u"Saving changes more than the values shown. Save all the same?"_s,
                               u"The value of r.language.file, \"a;b\", becomes \"a\"."_s};
    QCOMPARE(texts, expected);
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
