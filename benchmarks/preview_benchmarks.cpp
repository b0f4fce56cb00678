/*
 * How long the preview takes, from a document to its picture, and to draw what a window shows of it.
 */
#include "document_previewer.h"
#include "printout_files.h"
#include "printout_view.h"
#include "tx_configuration.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QBuffer>
#include <QFile>
#include <QScrollBar>

using namespace Qt::StringLiterals;

namespace {

QByteArray receipt(int rows)
{
    QByteArray document = "<document><method name=\"printFullOrderReceipt\"/><order>";
    for (int row = 0; row < rows; ++row)
        document += "<receipe number=\"2\" name=\"Pizza Margherita\" price=\"7.50\" totalPrice=\"15.00\"/>\n";
    return document + "</order></document>";
}

const TXConfiguration &configuration()
{
    static const TXConfiguration example(u"examples/tavolux.conf"_s, u"cfg"_s);
    return example;
}

PrintoutPainter painterOf(int rows)
{
    QByteArray document = receipt(rows);
    QBuffer device(&document);
    DocumentPreviewer previewer;
    return PrintoutPainter(previewer.preview(device, configuration()).printout);
}

// All that an edit in the editor asks for, but for drawing.
void printAgain(benchmark::State &state)
{
    QByteArray document = receipt(static_cast<int>(state.range(0)));
    DocumentPreviewer previewer;
    for ([[maybe_unused]] auto round : state) {
        QBuffer device(&document);
        benchmark::DoNotOptimize(PrintoutPainter(previewer.preview(device, configuration()).printout));
    }
}
BENCHMARK(printAgain)->Arg(20)->Arg(10'000)->Unit(benchmark::kMillisecond);

void repaintWindow(benchmark::State &state)
{
    PrintoutView view;
    view.resize(640, 800);
    view.setPrintout(painterOf(static_cast<int>(state.range(0))));
    view.verticalScrollBar()->setValue(view.verticalScrollBar()->maximum() / 2);
    QImage image(view.viewport()->size(), QImage::Format_RGB32);
    for ([[maybe_unused]] auto round : state)
        view.viewport()->render(&image);
}
BENCHMARK(repaintWindow)->Arg(20)->Arg(10'000)->Arg(90'000)->Unit(benchmark::kMillisecond);

void makeFile(benchmark::State &state)
{
    const PrintoutPainter painter = painterOf(static_cast<int>(state.range(1)));
    const auto format = static_cast<PrintoutFormat>(state.range(0));
    qsizetype bytes = 0;
    for ([[maybe_unused]] auto round : state) {
        const PrintoutFile file = printoutFile(painter, format);
        if (!file.error.isEmpty())
            state.SkipWithError(qPrintable(file.error));
        bytes = file.bytes.size();
    }
    state.counters["bytes"] = static_cast<double>(bytes);
}
BENCHMARK(makeFile)
    ->ArgsProduct({{static_cast<int>(PrintoutFormat::png)}, {20, 1000}})
    ->ArgsProduct({{static_cast<int>(PrintoutFormat::svg), static_cast<int>(PrintoutFormat::pdf)},
                   {20, 1000, 10'000}})
    ->ArgNames({"format", "rows"})
    ->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
