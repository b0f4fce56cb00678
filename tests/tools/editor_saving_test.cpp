#include "configuration_document.h"
#include "outline.h"
#include "read_file.h"
#include "settings_model.h"

#include "temporary_home.h"

#include <QDir>
#include <QDirIterator>
#include <QTest>

using namespace Qt::StringLiterals;
using libconfig::ConfigurationText;

/* Whatever value of whatever file is edited: the saved file has other bytes where the value stands and
 * nowhere else, and whoever prints reads the value. */
class EditorSavingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void changesOneValueAndNothingElse_data();
    void changesOneValueAndNothingElse();

private:
    const TemporaryHome home;
};

void EditorSavingTest::changesOneValueAndNothingElse_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("kind");
    const QDir project(QStringLiteral(TAVOLUX_SOURCE_DIR));
    const auto addFiles = [&](const QString &folder, const QStringList &names, const QString &kind) {
        qsizetype found = 0;
        for (QDirIterator file(project.filePath(folder), names, QDir::Files, QDirIterator::Subdirectories);
             file.hasNext(); ++found) {
            const QString path = file.next();
            QTest::newRow(qPrintable(project.relativeFilePath(path))) << path << kind;
        }
        QVERIFY2(found > 0, qPrintable(folder));
    };
    addFiles(u"examples"_s, {u"*.conf"_s}, u"cfg"_s);
    addFiles(u"tests/golden"_s, {u"*.conf"_s}, u"cfg"_s);
    addFiles(u"tests/golden-escpos"_s, {u"*.conf"_s}, u"cfg"_s);
    addFiles(u"fuzz/corpus/cfg"_s, {}, u"cfg"_s);
    addFiles(u"fuzz/corpus/xml"_s, {}, u"xml"_s);
}

void EditorSavingTest::changesOneValueAndNothingElse()
{
    QFETCH(const QString, file);
    QFETCH(const QString, kind);
    const QByteArray original = readRegularFile(file).bytes;
    const QString copy = home.writeFile(u"copy.conf"_s, original);
    ConfigurationDocument document;
    if (!document.open(copy, kind).isEmpty())
        return; // which is told, and tested elsewhere
    QCOMPARE(document.text().text(), original);

    struct Place
    {
        ShownSection section;
        ShownSetting setting;
    };
    std::vector<Place> places;
    for (const ShownSection &section : shownSections(document.text()))
        for (const ShownSetting &setting : shownSettings(document.text(), section))
            if (setting.entry != absent)
                places.push_back({section, setting});
    const auto settings =
        std::ranges::count_if(document.text().entries(), &ConfigurationText::Entry::isSetting);
    QCOMPARE(std::ssize(places), settings); // each is shown, once

    if (places.empty())
        return;
    // One of each file, since each save waits for the disk.
    const std::size_t some = qHashBits(original.constData(), static_cast<std::size_t>(original.size()));
    const Place &place = places[some % places.size()];
    const auto [begin, end] = document.text().entry(place.setting.entry).valueSpan;
    const std::optional<int> lookedUp = document.text().settingOf(keyOf(place.section, place.setting));

    SettingsModel model(document);
    model.show(place.section);
    int row = 0;
    while (model.settings()[static_cast<std::size_t>(row)].entry != place.setting.entry)
        ++row;
    QVERIFY(model.setData(model.index(row, SettingsModel::valueColumn), u"x 4711"_s));
    QVERIFY(document.save(copy));

    const QByteArray saved = fileBytes(copy);
    QCOMPARE(saved.first(begin), original.first(begin));
    QCOMPARE(saved.last(original.size() - end), original.sliced(end));
    const QByteArray value = saved.sliced(begin, saved.size() - original.size() + end - begin);
    QVERIFY2(value == "x 4711" || value == "\"x 4711\"", value.constData());
    if (lookedUp == place.setting.entry)
        QCOMPARE(TXConfiguration(copy, kind).getStrValue(keyOf(place.section, place.setting)), u"x 4711"_s);

    document.undoStack().undo();
    QCOMPARE(document.text().text(), original);
}

QTEST_GUILESS_MAIN(EditorSavingTest)
#include "editor_saving_test.moc"
