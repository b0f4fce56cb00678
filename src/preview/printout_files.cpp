#include "printout_files.h"

#include "printout_painter.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFileInfo>
#include <QImage>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/* Where the texts of this file are translated. */
struct PrintoutFiles
{
    Q_DECLARE_TR_FUNCTIONS(PrintoutFiles)
};

PrintoutFile pngOf(const PrintoutPainter &painter)
{
    constexpr int highest = 32'767; // that the toolkit draws, and most programs show
    if (painter.size().height() > highest)
        return {{},
                PrintoutFiles::tr("the picture would be %1 dots high, more than %2; "
                                  "a PDF, an SVG or a text can hold this printout")
                    .arg(painter.size().height())
                    .arg(highest)};

    constexpr double inchesPerMetre = 39.37;
    constexpr int dotsPerMetre = static_cast<int>(PrintoutPainter::dotsPerInch * inchesPerMetre);
    QImage image(painter.size(), QImage::Format_ARGB32_Premultiplied);
    if (image.isNull())
        return {{}, PrintoutFiles::tr("there is not enough memory for the picture")};
    image.fill(Qt::transparent);
    QPainter canvas(&image);
    painter.paint(canvas, image.rect());
    canvas.end();
    image.setDotsPerMeterX(dotsPerMetre);
    image.setDotsPerMeterY(dotsPerMetre);

    PrintoutFile file;
    QBuffer buffer(&file.bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!image.save(&buffer, "PNG"))
        file.error = PrintoutFiles::tr("the picture cannot be made");
    return file;
}

PrintoutFile svgOf(const PrintoutPainter &painter)
{
    PrintoutFile file;
    QBuffer buffer(&file.bytes);
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setResolution(PrintoutPainter::dotsPerInch);
    generator.setTitle(PrintoutFiles::tr("Printout"));
    generator.setSize(painter.size());
    generator.setViewBox(QRect(QPoint(), painter.size()));
    QPainter canvas(&generator);
    painter.paint(canvas, QRect(QPoint(), painter.size()));
    canvas.end();
    return file;
}

PrintoutFile pdfOf(const PrintoutPainter &painter)
{
    // The greatest that readers have to take, as dots and safely below.
    constexpr int highestPage = 40'000;
    constexpr double pointsPerDot = 72.0 / PrintoutPainter::dotsPerInch;
    const std::vector<int> ends = painter.pieces(highestPage);

    PrintoutFile file;
    QBuffer buffer(&file.bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setResolution(PrintoutPainter::dotsPerInch);
    writer.setTitle(PrintoutFiles::tr("Printout"));
    writer.setCreator(QCoreApplication::applicationName());
    writer.setPageMargins({});
    QPainter canvas;
    for (std::size_t page = 1; page < ends.size(); ++page) {
        const QRect part(0, ends[page - 1], painter.size().width(), ends[page] - ends[page - 1]);
        writer.setPageSize(QPageSize(QSizeF(part.size()) * pointsPerDot, QPageSize::Point, u"receipt"_s,
                                     QPageSize::ExactMatch));
        if (page == 1)
            canvas.begin(&writer);
        else
            writer.newPage();
        canvas.resetTransform();
        canvas.translate(0, -part.top());
        painter.paint(canvas, part);
    }
    canvas.end();
    return file;
}

PrintoutFile txtOf(const PrintoutPainter &painter)
{
    QString text = painter.printout().text();
    for (const QString &remark : painter.remarks())
        text += remark + u'\n';
    return {text.toUtf8(), {}};
}

struct FormatNamed
{
    QLatin1StringView name;
    PrintoutFormat format;
    PrintoutFile (*make)(const PrintoutPainter &);
};

constexpr FormatNamed formats[] = {
    {"png"_L1, PrintoutFormat::png, pngOf},
    {"svg"_L1, PrintoutFormat::svg, svgOf},
    {"pdf"_L1, PrintoutFormat::pdf, pdfOf},
    {"txt"_L1, PrintoutFormat::txt, txtOf},
};

} // namespace

std::optional<PrintoutFormat> formatNamed(const QString &name)
{
    const auto *const found = std::ranges::find(formats, name.toLower(), &FormatNamed::name);
    if (found == std::end(formats))
        return {};
    return found->format;
}

std::optional<PrintoutFormat> formatOfFile(const QString &fileName)
{
    return formatNamed(QFileInfo(fileName).suffix());
}

PrintoutFile printoutFile(const PrintoutPainter &painter, PrintoutFormat format)
{
    return std::ranges::find(formats, format, &FormatNamed::format)->make(painter);
}
