#include "diagnostic.h"

#include <QTest>

#include <iostream>
#include <streambuf>

/* Lines for whoever reads them. */
class DiagnosticTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // A reader at the other end of a pipe sees each line when it is said, not when the program ends.
    void eachLineIsFlushed()
    {
        // Holds back what is not flushed.
        class Buffer : public std::streambuf
        {
        public:
            QByteArray held;
            QByteArray seen;

        protected:
            int_type overflow(int_type byte) override
            {
                held += traits_type::to_char_type(byte);
                return byte;
            }
            int sync() override
            {
                seen += std::exchange(held, {});
                return 0;
            }
        } buffer;

        std::streambuf *const before = std::cout.rdbuf(&buffer);
        printDiagnostic("first");
        const QByteArray afterFirst = buffer.seen;
        printDiagnostic(QByteArrayView("se\0cond", 7));
        std::cout.rdbuf(before);
        QCOMPARE(afterFirst, "first\n");
        QCOMPARE(buffer.seen, QByteArray("first\nse\0cond\n", 14));
        QCOMPARE(buffer.held, "");
    }
};

QTEST_GUILESS_MAIN(DiagnosticTest)
#include "diagnostic_test.moc"
