#include "printout_painter.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

// In dots, like all measures here.
constexpr int canvasMargin = 12; // around the paper, for its edge
constexpr int sideMargin = 32; // which no printer prints on
constexpr int headMargin = 40;
constexpr int footMargin = 64;
constexpr int tooth = 12; // of the torn end
constexpr int doubleHeightExtra = PrintoutPainter::characterHeight;
constexpr int logoHeight = 120;
constexpr int cutHeight = 48;
constexpr int drawerHeight = 72;
constexpr int baseline = 19;
constexpr int paperLeft = canvasMargin;
constexpr int printLeft = canvasMargin + sideMargin;

const QColor paperColour(0xFD, 0xFC, 0xF5);
const QColor edgeColour(0xC9, 0xC4, 0xB4);
const QColor marginColour(0xE9, 0xE5, 0xD6);
const QColor inkColour(0x1E, 0x1E, 0x1E);
const QColor signColour(0x7A, 0x74, 0x66);
const QColor wrapColour(0xC8, 0x6A, 0x1E);
const QColor markColour(0xFF, 0xEE, 0xA8);
const QColor remarkColour(0xB3, 0x26, 0x1E);

int heightOf(const PrintedLine &line, const Raster &logo)
{
    switch (line.kind) {
    case PrintedLine::Kind::logo:
        return logo.rows > 0 ? logo.rows : logoHeight;
    case PrintedLine::Kind::cut:
        return cutHeight;
    case PrintedLine::Kind::drawer:
        return drawerHeight;
    case PrintedLine::Kind::text:
        break;
    }
    return PrintoutPainter::linePitch + (line.isDoubleHeight() ? doubleHeightExtra : 0);
}

// Breaks a text at blanks, and what is too long for a line anywhere.
QStringList brokenIntoLines(const QString &text, int columns)
{
    QStringList lines;
    QStringView rest = QStringView(text).trimmed();
    while (rest.size() > columns) {
        const qsizetype blank = rest.first(columns + 1).lastIndexOf(u' ');
        const qsizetype end = blank > 0 ? blank : columns;
        lines.append(rest.first(end).toString());
        rest = rest.sliced(end).trimmed();
    }
    lines.append(rest.toString());
    return lines;
}

// A zigzag from one side to the other, its points at most a tooth below the line.
QPolygonF zigzag(int left, int right, int top)
{
    QPolygonF line;
    const int points = 2 * ((right - left) / tooth); // an even number, to end where it began
    for (int point = 0; point <= points; ++point)
        line << QPointF(left + (right - left) * point / static_cast<double>(points),
                        top + (point % 2 == 0 ? 0 : tooth));
    return line;
}

void paintScissors(QPainter &painter, QPointF at)
{
    painter.save();
    painter.translate(at);
    painter.setPen(QPen(signColour, 2));
    painter.setBrush(Qt::NoBrush);
    for (const double side : {-1.0, 1.0}) {
        painter.drawEllipse(QPointF(5, side * 6), 5, 4);
        painter.drawLine(QPointF(9, side * 4), QPointF(28, side * -5));
    }
    painter.restore();
}

void paintCut(QPainter &painter, const QRect &line, int left, int right)
{
    painter.setPen(QPen(signColour, 2, Qt::DashLine));
    const int middle = line.center().y();
    painter.drawLine(left + 40, middle, right - 4, middle);
    paintScissors(painter, QPointF(left + 8, middle));
}

// A drawer pulled out of its case, and the arrow of its way.
void paintDrawer(QPainter &painter, const QRect &line)
{
    painter.save();
    painter.translate(line.center().x() - 44, line.top() + 6);
    painter.setPen(QPen(signColour, 2));
    painter.setBrush(marginColour);
    painter.drawRoundedRect(QRectF(0, 0, 88, 26), 3, 3);
    painter.setBrush(paperColour);
    painter.drawPolygon(QPolygonF({{10, 14}, {78, 14}, {86, 40}, {2, 40}}));
    painter.setBrush(marginColour);
    painter.drawRoundedRect(QRectF(2, 40, 84, 18), 3, 3);
    painter.drawLine(34, 49, 54, 49);
    for (const int x : {26, 44, 62})
        painter.drawEllipse(QPointF(x, 27), 6, 6);
    painter.restore();
}

// As the printer prints it, dot by dot; of one that is kept in the printer nobody knows more than where it
// is.
void paintLogo(QPainter &painter, const QRect &line, const Raster &logo)
{
    if (logo.rows > 0) {
        constexpr int dotsPerByte = 8;
        QImage dots(reinterpret_cast<const uchar *>(logo.bits.constData()), logo.bytesPerRow * dotsPerByte,
                    logo.rows, logo.bytesPerRow, QImage::Format_Mono);
        dots.setColorTable({Qt::transparent, inkColour.rgb()});
        painter.drawImage(line.center().x() - dots.width() / 2, line.top(), dots);
        return;
    }
    const QRectF frame(line.center().x() - 108, line.top() + 6, 216, line.height() - 18);
    painter.setPen(QPen(signColour, 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(frame, 8, 8);
    QPainterPath hills(frame.bottomLeft() + QPointF(16, -12));
    hills.lineTo(frame.topLeft() + QPointF(74, 30));
    hills.lineTo(frame.topLeft() + QPointF(112, 68));
    hills.lineTo(frame.topLeft() + QPointF(144, 44));
    hills.lineTo(frame.bottomRight() + QPointF(-16, -12));
    painter.drawPath(hills);
    painter.drawEllipse(frame.topRight() + QPointF(-44, 28), 10, 10);
}

// The bent arrow of a line that goes on in the next.
void paintWrapMark(QPainter &painter, QPointF at)
{
    painter.setPen(QPen(wrapColour, 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawPolyline(QPolygonF({at + QPointF(14, 4), at + QPointF(14, 16), at + QPointF(2, 16)}));
    painter.drawPolyline(QPolygonF({at + QPointF(7, 11), at + QPointF(2, 16), at + QPointF(7, 21)}));
}

} // namespace

std::optional<QFont> PrintoutPainter::gridFont(const QPaintDevice &device)
{
    QFont font(u"DejaVu Sans Mono"_s);
    font.setStyleHint(QFont::Monospace);
    font.setFixedPitch(true);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setKerning(false);
    if (QFontDatabase::families().isEmpty() || !QFontInfo(font).fixedPitch())
        return {};

    // The size at which a character is as wide as the grid; then what is left of the difference.
    constexpr double trialSize = 100;
    font.setPixelSize(static_cast<int>(trialSize));
    const double advance = QFontMetricsF(font).horizontalAdvance(u'0') / trialSize;
    if (advance <= 0)
        return {};
    constexpr double pointsPerInch = 72;
    font.setPointSizeF(characterWidth / advance * pointsPerInch / device.logicalDpiY());
    font.setLetterSpacing(QFont::AbsoluteSpacing,
                          characterWidth - QFontMetricsF(font, &device).horizontalAdvance(u'0'));
    return font;
}

PrintoutPainter::PrintoutPainter(Printout printout, QStringList remarks, std::vector<bool> marked)
    : m_printout(std::move(printout))
    , m_remarks(std::move(remarks))
    , m_marked(std::move(marked))
{
    int top = canvasMargin + headMargin;
    m_lineTops.reserve(m_printout.lines.size() + 1);
    for (const PrintedLine &line : m_printout.lines) {
        m_lineTops.push_back(top);
        top += heightOf(line, m_printout.logo);
    }
    m_lineTops.push_back(top);
    m_marked.resize(m_printout.lines.size());

    constexpr int fewestColumns = 20; // in which a remark can be read
    const int columns = std::max(m_printout.columns, fewestColumns);
    for (const QString &remark : m_remarks)
        m_remarkLines += brokenIntoLines(remark, columns);
    const int remarksHeight = static_cast<int>(m_remarkLines.size()) * linePitch;
    const int width = m_remarks.isEmpty() ? m_printout.columns : columns;
    m_size = {width * characterWidth + 2 * printLeft, paperBottom() + tooth + canvasMargin + remarksHeight};
}

int PrintoutPainter::paperRight() const
{
    return printLeft + m_printout.columns * characterWidth + sideMargin;
}

int PrintoutPainter::paperBottom() const
{
    return m_lineTops.back() + footMargin;
}

std::vector<int> PrintoutPainter::pieces(int height) const
{
    std::vector<int> ends{0};
    for (std::size_t line = 0; line < m_printout.lines.size(); ++line)
        if (m_lineTops[line + 1] - ends.back() > height)
            ends.push_back(m_lineTops[line]);
    if (m_size.height() - ends.back() > height)
        ends.push_back(m_lineTops.back());
    ends.push_back(m_size.height());
    return ends;
}

std::optional<std::size_t> PrintoutPainter::firstMarkedLine() const
{
    const auto marked = std::ranges::find(m_marked, true);
    if (marked == m_marked.end())
        return {};
    return static_cast<std::size_t>(marked - m_marked.begin());
}

void PrintoutPainter::paint(QPainter &painter, const QRect &part) const
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::TextAntialiasing);
    paintPaper(painter, part);

    const std::optional<QFont> font = gridFont(*painter.device());
    if (!font)
        return; // which whoever draws has asked before
    const auto next = std::ranges::upper_bound(m_lineTops, part.top());
    auto line = static_cast<std::size_t>(std::max<std::ptrdiff_t>(next - m_lineTops.begin() - 1, 0));
    for (; line < m_printout.lines.size() && m_lineTops[line] <= part.bottom(); ++line)
        paintLine(painter, *font, line);
    paintRemarks(painter, *font);
}

// The paper from a straight beginning to a torn end, as far as it lies in the part.
void PrintoutPainter::paintPaper(QPainter &painter, const QRect &part) const
{
    const int top = std::max(canvasMargin, part.top() - linePitch);
    const bool hasEnd = part.bottom() >= paperBottom();
    const int bottom = hasEnd ? paperBottom() : part.bottom() + linePitch;
    if (top >= bottom)
        return;

    QPolygonF outline{{{QPointF(paperLeft, top)}, {QPointF(paperRight(), top)}}};
    QPolygonF end = zigzag(paperLeft, paperRight(), bottom);
    std::ranges::reverse(end);
    outline << end;
    painter.setPen(QPen(edgeColour, 2));
    painter.setBrush(paperColour);
    painter.drawPolygon(outline);

    painter.setPen(QPen(marginColour, 2));
    const int printRight = paperRight() - sideMargin;
    for (const int x : {printLeft - 3, printRight + 3})
        painter.drawLine(x, std::max(top, canvasMargin + 12), x, bottom - 4);
}

void PrintoutPainter::paintLine(QPainter &painter, const QFont &font, std::size_t index) const
{
    const PrintedLine &line = m_printout.lines[index];
    const QRect area(QPoint(printLeft, m_lineTops[index]),
                     QSize(m_printout.columns * characterWidth, m_lineTops[index + 1] - m_lineTops[index]));
    if (m_marked[index])
        painter.fillRect(area.adjusted(-4, -3, 4, -3), markColour);
    switch (line.kind) {
    case PrintedLine::Kind::logo:
        return paintLogo(painter, area, m_printout.logo);
    case PrintedLine::Kind::cut:
        return paintCut(painter, area, paperLeft, paperRight());
    case PrintedLine::Kind::drawer:
        return paintDrawer(painter, area);
    case PrintedLine::Kind::text:
        break;
    }

    for (const PrintedRun &run : line.runs) {
        QFont runFont(font);
        runFont.setBold(run.style.bold);
        painter.setFont(runFont);
        painter.setPen(inkColour);
        const QPointF at(area.left() + run.column * characterWidth, area.bottom() + 1 - linePitch + baseline);
        if (!run.style.doubleHeight) {
            painter.drawText(at, run.text);
            continue;
        }
        painter.save();
        painter.translate(at.x(), area.top() + 2 * baseline);
        painter.scale(1, 2);
        painter.drawText(QPointF(), run.text);
        painter.restore();
    }
    if (index + 1 < m_printout.lines.size() && m_printout.lines[index + 1].continued)
        paintWrapMark(painter, QPointF(area.right() + 8, area.bottom() - linePitch));
}

void PrintoutPainter::paintRemarks(QPainter &painter, const QFont &font) const
{
    painter.setFont(font);
    painter.setPen(remarkColour);
    int y = paperBottom() + tooth + canvasMargin + baseline - 6;
    for (const QString &line : m_remarkLines) {
        painter.drawText(QPointF(printLeft, y), line);
        y += linePitch;
    }
}
