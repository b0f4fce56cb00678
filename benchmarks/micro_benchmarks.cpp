#include "company_printer_driver.h"
#include "config.h"

#include <benchmark/benchmark.h>

#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

/* A driver whose profile is the one of the sample receipts. */
class ReceiptPrinter : public CompanyPrinterDriver
{
public:
    ReceiptPrinter()
        : CompanyPrinterDriver(u"/dev/null"_s, false)
    {
        profile.quantityFieldWidth = 3;
        profile.priceFieldWidth = 8;
        profile.totalPriceFieldWidth = 9;
        profile.paperWidth = 42;
    }
};

void descriptionRow(benchmark::State &state, const QString &format)
{
    const ReceiptPrinter printer;
    const QString quantity = u"2"_s;
    const QString description = u"Bistecca alla griglia con rucola"_s;
    const QString price = u"18.50"_s;
    const QString totalPrice = u"37.00"_s;
    for ([[maybe_unused]] auto round : state)
        benchmark::DoNotOptimize(
            printer.descriptionRow(quantity, description, price, totalPrice, u'.', format));
    if (format == "qxdpt"_L1
        && printer.descriptionRow(quantity, description, price, totalPrice, u'.', format)
            != "  2 x Bistecca alla grigl...18.50    37.00"_L1)
        state.SkipWithError("wrong row");
}
BENCHMARK_CAPTURE(descriptionRow, qdpt, u"qdpt"_s);
BENCHMARK_CAPTURE(descriptionRow, qxdpt, u"qxdpt"_s);
BENCHMARK_CAPTURE(descriptionRow, dateAmountType, u"date-amount-type"_s);

/* A configuration file of 100 sections with 100 settings each, after the one section that keys name. */
class LargeConfiguration
{
public:
    LargeConfiguration()
    {
        QFile file(path());
        if (!file.open(QIODevice::WriteOnly))
            qFatal("cannot write %s", qPrintable(path()));
        QTextStream text(&file);
        text << "tavolux : {\n";
        for (int section = 0; section < 100; ++section) {
            text << "  section" << section << " : {\n";
            for (int setting = 0; setting < 100; ++setting)
                text << "    setting" << setting << " = \"value " << section * 100 + setting << "\";\n";
            text << "  };\n";
        }
        text << "};\n";
    }

    QString path() const { return directory.filePath(u"large.conf"_s); }

private:
    QTemporaryDir directory;
};

void loadTenThousandSettings(benchmark::State &state)
{
    const LargeConfiguration large;
    for ([[maybe_unused]] auto round : state)
        benchmark::DoNotOptimize(libconfig::Config(large.path(), u"cfg"_s));
}
BENCHMARK(loadTenThousandSettings)->Unit(benchmark::kMillisecond);

void lookup(benchmark::State &state, const QString &key, const QString &expected)
{
    const LargeConfiguration large;
    const libconfig::Config configuration(large.path(), u"cfg"_s);
    if (configuration.lookup(key) != expected)
        state.SkipWithError("wrong value");
    for ([[maybe_unused]] auto round : state)
        benchmark::DoNotOptimize(configuration.lookup(key));
}
BENCHMARK_CAPTURE(lookup, firstSection, u"tavolux.section0.setting0"_s, u"value 0"_s);
BENCHMARK_CAPTURE(lookup, lastSection, u"tavolux.section99.setting99"_s, u"value 9999"_s);
BENCHMARK_CAPTURE(lookup, missing, u"tavolux.section99.nothing"_s, QString());

} // namespace

BENCHMARK_MAIN();
