#include "text_difference.h"

#include <QTest>

class TextDifferenceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void difference_data()
    {
        QTest::addColumn<QByteArray>("expected");
        QTest::addColumn<QByteArray>("actual");
        QTest::addColumn<QByteArray>("difference");

        const auto row = [](const char *name, const QByteArray &expected, const QByteArray &actual,
                            const QByteArray &difference) {
            QTest::newRow(name) << expected << actual << difference;
        };
        row("same", "a\nb\n", "a\nb\n", "");
        row("both empty", "", "", "");
        row("changed line between two", "a\nb\nc\n", "a\nx\nc\n", "  a\\n\n- b\\n\n+ x\\n\n  c\\n\n");
        row("missing line", "a\nb\nc\n", "a\nc\n", "  a\\n\n- b\\n\n  c\\n\n");
        row("additional line that repeats its neighbour", "a\nb\n", "a\na\nb\n", "  a\\n\n+ a\\n\n  b\\n\n");
        row("missing last line end", "a\n", "a", "- a\\n\n+ a\n");
        row("missing drawer command", "a\n\x1Bp0", "a\n", "  a\\n\n- \\x1Bp0\n");
        row("trailing blank", "a\n", "a \n", "- a\\n\n+ a \\n\n");
        row("nothing printed", "a\n", "", "- a\\n\n");
        row("non-ASCII text as it is", "\xC3\xA8\n", "e\n", "- \xC3\xA8\\n\n+ e\\n\n");
    }

    void difference()
    {
        QFETCH(const QByteArray, expected);
        QFETCH(const QByteArray, actual);
        QTEST(textDifference(expected, actual), "difference");
    }
};

QTEST_GUILESS_MAIN(TextDifferenceTest)
#include "text_difference_test.moc"
