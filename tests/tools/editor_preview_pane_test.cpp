#include "editor_window.h"
#include "preview_pane.h"
#include "printout_view.h"
#include "scripted_dialogs.h"
#include "temporary_home.h"

#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QSettings>
#include <QTest>
#include <QTreeView>

using namespace Qt::StringLiterals;

namespace {

/* An editor with a configuration in a folder of its own. */
struct OpenedEditor
{
    const TemporaryHome home;
    ScriptedDialogs dialogs;
    EditorWindow window{dialogs};
    PreviewPane &pane = *window.findChild<PreviewPane *>();

    explicit OpenedEditor(
        const QByteArray &configuration =
            "tavolux : { receiptdoc : { paperWidth = 40; printTable = true; printDate = false; };"
            " solddoc : { paperWidth = 30; }; };")
    {
        window.show();
        window.open(home.writeFile(u"tavolux.conf"_s, configuration));
        if (!QTest::qWaitForWindowExposed(&window))
            qFatal("the window does not show");
        select(u"tavolux.receiptdoc.style"_s);
    }

    void select(const QString &key) const
    {
        auto *const field = window.findChild<QLineEdit *>(u"find"_s);
        field->setText(key);
        field->clear();
    }
    void edit(const QString &key, const QString &value) const
    {
        select(key);
        auto *const settings = window.findChild<QTreeView *>(u"settings"_s);
        settings->model()->setData(settings->currentIndex(), value);
    }

    const PrintoutPainter &painter() const { return *pane.findChild<PrintoutView *>()->painter(); }
    int columns() const { return painter().printout().columns; }
    QString text() const { return painter().printout().text(); }

    /* The first line that is marked; empty where none is. */
    QString markedLine() const
    {
        const auto line = painter().firstMarkedLine();
        return line ? painter().printout().lines[*line].text() : QString();
    }
};

} // namespace

class EditorPreviewPaneTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QSettings().clear(); }
    void followsAnEdit();
    void followsASwitch();
    void followsTheProfile();
    void marksTheLinesOfASetting_data();
    void marksTheLinesOfASetting();
    void showsADocumentOfOnesOwn();
    void tellsWhatCannotBeRead();
    void readsAgain();
    void keepsWhetherItIsShown();
    void readsConfigurationsOfTheOtherKind();
};

void EditorPreviewPaneTest::followsAnEdit()
{
    const OpenedEditor editor;
    QCOMPARE(editor.columns(), 40);
    editor.edit(u"tavolux.receiptdoc.paperWidth"_s, u"42"_s);
    QCOMPARE(editor.columns(), 42); // at once, unsaved
    QVERIFY(editor.window.isWindowModified());
}

void EditorPreviewPaneTest::followsASwitch()
{
    const OpenedEditor editor;
    QVERIFY(!editor.text().contains(" Date: "_L1));
    editor.edit(u"tavolux.receiptdoc.printDate"_s, u"true"_s);
    QVERIFY(editor.text().contains(" Date: 14/05/2024\n"_L1));
    editor.edit(u"tavolux.receiptdoc.printDate"_s, u"false"_s);
    QVERIFY(!editor.text().contains(" Date: "_L1));
}

void EditorPreviewPaneTest::followsTheProfile()
{
    const OpenedEditor editor;
    auto *const documents = editor.pane.findChild<QComboBox *>(u"documents"_s);
    QCOMPARE(documents->currentText(), u"full-receipt.xml"_s);
    documents->setCurrentIndex(1);
    QCOMPARE(documents->currentText(), u"abstract-receipt.xml"_s);
    editor.select(u"tavolux.solddoc.paperWidth"_s);
    QCOMPARE(documents->currentText(), u"sold-items.xml"_s);
    QCOMPARE(editor.columns(), 30);
    editor.select(u"tavolux.language.file"_s); // of no profile
    QCOMPARE(editor.columns(), 30);
}

void EditorPreviewPaneTest::marksTheLinesOfASetting_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("marked");
    QTest::newRow("a switch") << u"tavolux.receiptdoc.printTable"_s << u" Table: 12"_s;
    QTest::newRow("a width") << u"tavolux.receiptdoc.paperWidth"_s << QString(40, u'=');
    QTest::newRow("a switch that prints nothing") << u"tavolux.receiptdoc.printDate"_s << QString();
    QTest::newRow("nothing that is printed") << u"tavolux.receiptdoc.openCashDrawer"_s << QString();
}

void EditorPreviewPaneTest::marksTheLinesOfASetting()
{
    QFETCH(const QString, key);
    QFETCH(const QString, marked);
    const OpenedEditor editor;
    editor.select(u"tavolux.receiptdoc.style"_s);
    QCOMPARE(editor.markedLine(), QString());
    editor.select(key);
    QCOMPARE(editor.markedLine(), marked);
}

void EditorPreviewPaneTest::showsADocumentOfOnesOwn()
{
    const TemporaryHome home;
    const QString own = home.writeFile(
        u"own.xml"_s,
        "<document><method name=\"printFullOrderReceipt\"/><receipt serialnumber=\"4711\"/></document>");
    {
        const OpenedEditor editor;
        editor.pane.chooseDocument(own);
        QVERIFY(editor.text().startsWith(" Serial Number: 4711\n"_L1));
    }
    const OpenedEditor next;
    QVERIFY(next.text().startsWith(" Serial Number: 4711\n"_L1));
}

void EditorPreviewPaneTest::tellsWhatCannotBeRead()
{
    const OpenedEditor editor;
    const auto *const remarks = editor.pane.findChild<QLabel *>(u"remarks"_s);
    QVERIFY(remarks->isHidden());
    editor.pane.chooseDocument(u"/missing.xml"_s);
    QCOMPARE(remarks->text(), u"/missing.xml cannot be read: No such file or directory"_s);
    editor.pane.chooseDocument(editor.home.writeFile(u"open.xml"_s, "<document>"));
    QVERIFY(remarks->text().startsWith("Incomplete: line 1, "_L1));
    QVERIFY(remarks->isVisible());
}

void EditorPreviewPaneTest::readsAgain()
{
    OpenedEditor editor;
    editor.home.writeFile(u"tavolux.conf"_s, "tavolux : { receiptdoc : { paperWidth = 33; }; };");
    editor.window.reload();
    QCOMPARE(editor.columns(), 33);
}

void EditorPreviewPaneTest::keepsWhetherItIsShown()
{
    {
        OpenedEditor editor;
        QVERIFY(editor.pane.isVisible());
        editor.pane.toggleViewAction()->trigger();
        QVERIFY(!editor.pane.isVisible());
        editor.edit(u"tavolux.receiptdoc.paperWidth"_s, u"42"_s);
        QCOMPARE(editor.columns(), 40); // nobody sees it
        editor.dialogs.answers << QMessageBox::Discard; // of the changes
        QVERIFY(editor.window.close());
    }
    const OpenedEditor next;
    QVERIFY(!next.pane.isVisible());
    next.pane.toggleViewAction()->trigger();
    QVERIFY(next.pane.isVisible());
    QCOMPARE(next.columns(), 40);
}

void EditorPreviewPaneTest::readsConfigurationsOfTheOtherKind()
{
    const TemporaryHome home;
    ScriptedDialogs dialogs;
    EditorWindow window(dialogs);
    window.show();
    window.open(home.writeFile(u"tavolux.xml"_s, "<tavolux><receiptdoc paperWidth=\"37\"/></tavolux>"));
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    window.findChild<QLineEdit *>(u"find"_s)->setText(u"receiptdoc.paperWidth"_s);
    QCOMPARE(window.findChild<PrintoutView *>()->painter()->printout().columns, 37);
}

QTEST_MAIN(EditorPreviewPaneTest)
#include "editor_preview_pane_test.moc"
