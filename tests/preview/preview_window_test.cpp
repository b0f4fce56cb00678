#include "interface_language.h"
#include "preview_window.h"
#include "printout_view.h"
#include "temporary_home.h"

#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QTranslator>

using namespace Qt::StringLiterals;

namespace {

QByteArray receipt(const QByteArray &number)
{
    return "<document><method name=\"printFullOrderReceipt\"/><receipt serialnumber=\"" + number
        + "\"/></document>";
}

/* A window for a document and a configuration in a folder of its own. */
struct OpenedWindow
{
    const TemporaryHome home;
    const QString document = home.writeFile(u"order.xml"_s, receipt("17"));
    const QString configuration = home.writeFile(
        u"tavolux.conf"_s,
        "tavolux : { receiptdoc : { paperWidth = 25; }; language : { basedir = \"" TAVOLUX_BINARY_DIR
        "/translations\"; }; };");
    PreviewWindow window{document, configuration, {}};
    PrintoutView &view = *window.findChild<PrintoutView *>();
    QLabel &remarks = *window.findChild<QLabel *>(u"remarks"_s);

    OpenedWindow()
    {
        window.show();
        if (!QTest::qWaitForWindowExposed(&window))
            qFatal("the window does not show");
    }

    QString firstLine() const { return view.painter()->printout().lines.front().text(); }

    // As editors and shops' tills do it: a new file takes the name.
    void replace(const QString &file, const QByteArray &bytes) const
    {
        const QString other = home.writeFile(u"new"_s, bytes);
        if (!QFile::remove(file) || !QFile::rename(other, file))
            qFatal("the file cannot be replaced");
    }

    QAction *action(const QString &text)
    {
        for (QAction *menu : window.menuBar()->actions())
            for (QAction *action : menu->menu()->actions())
                if (action->text() == text)
                    return action;
        qFatal("there is no such action");
    }

    QByteArray picture() const
    {
        const QImage image = view.viewport()->grab().toImage();
        return QByteArray(reinterpret_cast<const char *>(image.constBits()), image.sizeInBytes());
    }
};

} // namespace

class PreviewWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsTheDocument();
    void followsTheDocument();
    void followsADocumentThatIsReplaced();
    void followsADocumentThatComesBack();
    void followsTheConfiguration();
    void tellsWhatIsIncomplete();
    void zooms();
    void fitsTheWidth();
    void drawsOnlyWhatIsSeen();
    void choosesTheLanguage();
    void choosesThePaper();
    void speaksTheLanguageOfItsPerson();
    void saves_data();
    void saves();
    void tellsWhatCannotBeSaved_data();
    void tellsWhatCannotBeSaved();
};

void PreviewWindowTest::showsTheDocument()
{
    const OpenedWindow opened;
    QCOMPARE(opened.window.windowTitle(), u"order.xml"_s);
    QCOMPARE(opened.firstLine(), u" Serial Number: 17"_s);
    QVERIFY(opened.window.preview().isWhole());
    QVERIFY(opened.remarks.isHidden());
}

void PreviewWindowTest::followsTheDocument()
{
    const OpenedWindow opened;
    const QByteArray before = opened.picture();
    opened.home.writeFile(u"order.xml"_s, receipt("18"));
    QTRY_COMPARE(opened.firstLine(), u" Serial Number: 18"_s);
    QVERIFY(opened.picture() != before);
}

void PreviewWindowTest::followsADocumentThatIsReplaced()
{
    const OpenedWindow opened;
    for (const QByteArray number : {"18", "19", "20"}) {
        opened.replace(opened.document, receipt(number));
        QTRY_COMPARE(opened.firstLine(), u" Serial Number: "_s + QString::fromLatin1(number));
    }
}

void PreviewWindowTest::followsADocumentThatComesBack()
{
    const OpenedWindow opened;
    QVERIFY(QFile::remove(opened.document));
    QTRY_VERIFY(opened.remarks.text().endsWith("order.xml cannot be read: No such file or directory"_L1));
    QCOMPARE(opened.firstLine(), u" Serial Number: 17"_s);
    opened.home.writeFile(u"order.xml"_s, receipt("21"));
    QTRY_COMPARE(opened.firstLine(), u" Serial Number: 21"_s);
    QVERIFY(opened.remarks.isHidden());
}

void PreviewWindowTest::followsTheConfiguration()
{
    const OpenedWindow opened;
    QCOMPARE(opened.view.painter()->printout().columns, 25);
    opened.replace(opened.configuration, "tavolux : { receiptdoc : { paperWidth = 30; }; };");
    QTRY_COMPARE(opened.view.painter()->printout().columns, 30);
    QVERIFY(QFile::remove(opened.configuration));
    QTRY_VERIFY(opened.remarks.text().startsWith("There is no configuration "_L1));
    QCOMPARE(opened.view.painter()->printout().columns, 34);
}

void PreviewWindowTest::tellsWhatIsIncomplete()
{
    const OpenedWindow opened;
    opened.home.writeFile(u"order.xml"_s, receipt("17").chopped(3));
    QTRY_COMPARE(opened.remarks.text(), u"Incomplete: line 1, column 85: unexpected end of file"_s);
    QVERIFY(opened.remarks.isVisible());
    QVERIFY(!opened.window.preview().isWhole());
    QCOMPARE(opened.firstLine(), u" Serial Number: 17"_s);
}

void PreviewWindowTest::zooms()
{
    OpenedWindow opened;
    opened.action(u"&Dot by Dot"_s)->trigger();
    QCOMPARE(opened.view.zoom(), 1.0);
    const QByteArray before = opened.picture();
    opened.action(u"Zoom &In"_s)->trigger();
    QCOMPARE(opened.view.zoom(), 1.25);
    QVERIFY(opened.picture() != before);
    opened.action(u"Zoom &Out"_s)->trigger();
    QCOMPARE(opened.view.zoom(), 1.0);
    QCOMPARE(opened.picture(), before);
    for (int i = 0; i < 20; ++i)
        opened.view.zoomIn();
    QCOMPARE(opened.view.zoom(), 4.0);
    for (int i = 0; i < 40; ++i)
        opened.view.zoomOut();
    QCOMPARE(opened.view.zoom(), 0.2);
}

void PreviewWindowTest::fitsTheWidth()
{
    OpenedWindow opened;
    // 25 columns of 12 dots between margins of 44.
    opened.window.resize(1000, 400);
    QCOMPARE(opened.view.zoom(), 1.0);
    opened.view.zoomIn();
    opened.window.resize(900, 400);
    QCOMPARE(opened.view.zoom(), 1.25);
    opened.view.fitWidth();
    opened.view.resize(164, 400);
    QCOMPARE(opened.view.zoom(), opened.view.viewport()->width() / 388.0);
    QCOMPARE(opened.view.horizontalScrollBar()->maximum(), 0);
}

// A line in the middle of a hundred thousand is drawn as if it were the first.
void PreviewWindowTest::drawsOnlyWhatIsSeen()
{
    Printout printout;
    printout.setColumns(20);
    for (int line = 0; line < 100'000; ++line)
        printout.lines.push_back({.runs = {{u"even"_s, 0, 4, false, {}}}});
    PrintoutView view;
    view.resize(400, 300);
    view.setPrintout(PrintoutPainter(printout));
    view.zoomToDots();
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));

    const auto lineAt = [&view](std::size_t line) {
        view.verticalScrollBar()->setValue(view.painter()->lineTop(line));
        return view.viewport()->grab(QRect(0, 0, 400, 30)).toImage();
    };
    const QImage early = lineAt(1);
    QCOMPARE(lineAt(50'000), early);
    QCOMPARE(lineAt(99'000), early);
    QTest::keyClick(&view, Qt::Key_End);
    QCOMPARE(view.verticalScrollBar()->value(), view.verticalScrollBar()->maximum());
}

void PreviewWindowTest::choosesTheLanguage()
{
    const OpenedWindow opened;
    auto *const languages = opened.window.findChild<QComboBox *>(u"language"_s);
    QVERIFY(languages->count() >= 6); // as configured, and five
    languages->setCurrentIndex(languages->findData(u"it"_s));
    QCOMPARE(opened.firstLine(), u" Numero progressivo: 17"_s);
    languages->setCurrentIndex(languages->findData(u"de"_s));
    QCOMPARE(opened.firstLine(), u" Belegnummer: 17"_s);
    languages->setCurrentIndex(0);
    QCOMPARE(opened.firstLine(), u" Serial Number: 17"_s);
}

void PreviewWindowTest::choosesThePaper()
{
    const OpenedWindow opened;
    auto *const papers = opened.window.findChild<QComboBox *>(u"paper"_s);
    papers->setCurrentIndex(papers->findData(48));
    QCOMPARE(opened.view.painter()->printout().columns, 48);
    papers->setCurrentIndex(0);
    QCOMPARE(opened.view.painter()->printout().columns, 25);

    const PreviewWindow unusual(opened.document, opened.configuration,
                                {.printer = {}, .columns = 7, .language = {}});
    QCOMPARE(unusual.findChild<QComboBox *>(u"paper"_s)->currentData().toInt(), 7);
}

void PreviewWindowTest::speaksTheLanguageOfItsPerson()
{
    QLocale::setDefault(QLocale(u"de_AT"_s));
    QTranslator translator;
    QVERIFY(loadInterface(translator, {u"/nowhere"_s, QStringLiteral(TAVOLUX_BINARY_DIR "/translations")}));
    QCoreApplication::installTranslator(&translator);
    {
        OpenedWindow opened;
        QCOMPARE(opened.window.menuBar()->actions().constFirst()->text(), u"&Datei"_s);
        QCOMPARE(opened.firstLine(), u" Serial Number: 17"_s); // as configured
        opened.home.writeFile(u"order.xml"_s, receipt("17").chopped(3));
        QTRY_VERIFY(opened.remarks.text().startsWith(u"Unvollst\u00E4ndig: Zeile 1, "_s));
    }
    QCoreApplication::removeTranslator(&translator);
    QLocale::setDefault(QLocale::c());
}

void PreviewWindowTest::saves_data()
{
    QTest::addColumn<QByteArray>("beginning");
    QTest::newRow("receipt.png") << "\x89PNG"_ba;
    QTest::newRow("receipt.svg") << "<?xml version"_ba;
    QTest::newRow("receipt.pdf") << "%PDF-"_ba;
    QTest::newRow("receipt.txt") << " Serial Number: 17\n"_ba;
    QTest::newRow("RECEIPT.PDF") << "%PDF-"_ba;
}

void PreviewWindowTest::saves()
{
    QFETCH(const QByteArray, beginning);
    OpenedWindow opened;
    const QString file = opened.home.filePath(QString::fromUtf8(QTest::currentDataTag()));
    QVERIFY(opened.window.saveAs(file));
    QVERIFY(fileBytes(file).startsWith(beginning));
    QVERIFY(!opened.window.findChild<QMessageBox *>());
}

void PreviewWindowTest::tellsWhatCannotBeSaved_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("reason");
    QTest::newRow("unknown ending") << u"receipt.doc"_s
                                    << u"the name has to end in .png, .svg, .pdf or .txt"_s;
    QTest::newRow("no such folder") << u"missing/receipt.txt"_s << u"No such file or directory"_s;
}

void PreviewWindowTest::tellsWhatCannotBeSaved()
{
    QFETCH(const QString, name);
    QFETCH(const QString, reason);
    OpenedWindow opened;
    const QString file = opened.home.path() + u'/' + name;
    QVERIFY(!opened.window.saveAs(file));
    const auto *const message = opened.window.findChild<QMessageBox *>();
    QVERIFY(message);
    QCOMPARE(message->text(), u"Cannot write %1: %2"_s.arg(file, reason));
}

QTEST_MAIN(PreviewWindowTest)
#include "preview_window_test.moc"
