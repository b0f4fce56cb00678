#include "escpos_paper.h"

#include "diagnostic.h"
#include "file_name.h"
#include "logo.h"
#include "print_output.h"

#include <QObject>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

QByteArray bytes(std::initializer_list<int> numbers)
{
    QByteArray all;
    for (const int number : numbers)
        all.append(static_cast<char>(number));
    return all;
}

// The commands, each of its exact length: of one that is too short the printer would take text for the rest.
QByteArray initialise()
{
    return bytes({0x1B, '@'});
}

// Some printers otherwise take two bytes above ASCII for one Chinese character.
QByteArray cancelKanjiMode()
{
    return bytes({0x1C, '.'});
}

// Others print national letters in place of #, @, [ and their like.
QByteArray selectInternationalSet()
{
    return bytes({0x1B, 'R', 0});
}

QByteArray selectCodePage(quint8 number)
{
    return bytes({0x1B, 't', number});
}

QByteArray setBold(bool on)
{
    return bytes({0x1B, 'E', on});
}

QByteArray setDoubleHeight(bool on)
{
    return bytes({0x1D, '!', on});
}

QByteArray feedLines(int lines)
{
    return bytes({0x1B, 'd', lines});
}

QByteArray feedToCutterAndCut(Cutter cutter)
{
    return bytes({0x1D, 'V', cutter == Cutter::full ? 0x41 : 0x42, 0});
}

QByteArray pulseDrawer(int pin, DrawerPulse pulse)
{
    return bytes({0x1B, 'p', pin == 2 ? 0 : 1, pulse.onMilliseconds / 2, pulse.offMilliseconds / 2});
}

QByteArray printStoredLogo(int number)
{
    return bytes({0x1C, 'p', number, 0});
}

// So many rows of the raster, from the given one on.
QByteArray printRaster(const Raster &raster, int firstRow, int rows)
{
    return bytes({0x1D, 'v', '0', 0, raster.bytesPerRow % 256, raster.bytesPerRow / 256, rows % 256,
                  rows / 256})
        + raster.bits.sliced(qsizetype(firstRow) * raster.bytesPerRow, qsizetype(rows) * raster.bytesPerRow);
}

constexpr int dotsPerColumn = 12; // of the normal type
constexpr int rowsAtOnce = 128; // of a picture: small printers have little memory

int dotsAcross(const PrinterModel &model)
{
    return model.dots > 0 ? model.dots : model.columns * dotsPerColumn;
}

} // namespace

QString EscposPaper::incompleteMark()
{
    return QObject::tr("*** INCOMPLETE ***");
}

Logo EscposPaper::logoOf(const PrinterSettings &settings)
{
    if (!settings.model->raster)
        return {{}, u"the printer prints no pictures"_s};
    return readLogo(settings.logoFile, dotsAcross(*settings.model));
}

EscposPaper::EscposPaper(PrinterSettings settings)
    : m_settings(std::move(settings))
    , m_encoder(m_settings.pages())
{
}

EscposPaper::~EscposPaper() = default;

int EscposPaper::columns() const
{
    return m_settings.columns;
}

int EscposPaper::width(QStringView text) const
{
    return m_encoder.width(text);
}

void EscposPaper::begin(PrintOutput &output)
{
    m_output = &output;
    m_bytes = initialise() + cancelKanjiMode() + selectInternationalSet()
        + selectCodePage(m_settings.codePages.front().number);
}

void EscposPaper::text(QStringView text, TextStyle style)
{
    while (!text.isEmpty()) {
        if (m_line.text().size() == longestLine) {
            printLine();
            handOver();
        }
        const QStringView next = text.first(std::min(text.size(), longestLine - m_line.text().size()));
        m_line.append(next, style);
        text = text.sliced(next.size());
    }
}

void EscposPaper::endLine()
{
    printLine();
    m_bytes += '\n';
    m_isBlank = false;
    handOver();
}

void EscposPaper::logo()
{
    if (!m_line.text().isEmpty())
        endLine();
    if (m_settings.storedLogo > 0) {
        m_bytes += printStoredLogo(m_settings.storedLogo);
        m_isBlank = false;
    } else if (!m_settings.logoFile.isEmpty()) {
        printPicture();
    }
    handOver();
}

void EscposPaper::cut()
{
    if (!m_line.text().isEmpty())
        endLine();
    if (m_isBlank)
        return;
    use({});
    usePage(0);
    if (m_settings.feed > 0)
        m_bytes += feedLines(m_settings.feed);
    if (m_settings.cut != Cutter::none)
        m_bytes += feedToCutterAndCut(m_settings.cut);
    m_isBlank = true;
}

void EscposPaper::openDrawer()
{
    m_opensDrawer = true;
}

void EscposPaper::codePageLine(quint8 page, QStringView text)
{
    if (!m_line.text().isEmpty())
        endLine();
    use({});
    usePage(page);
    CodePageEncoder encoder(m_settings.codePages[page].page);
    for (const QChar character : text)
        if (const quint8 byte = encoder.byte(character.unicode()); byte != 0)
            m_bytes += static_cast<char>(byte);
    endLine();
}

void EscposPaper::end(Ending ending, int copies)
{
    if (!m_line.text().isEmpty())
        endLine();
    if (ending == Ending::incomplete) {
        text(incompleteMark(), {.bold = true, .doubleHeight = true});
        endLine();
    }
    cut();
    if (ending == Ending::complete) {
        if (m_settings.duplicate && copies == 2)
            m_bytes += QByteArray(m_bytes);
        if (m_opensDrawer)
            m_bytes += pulseDrawer(m_settings.drawerPin, m_settings.drawerPulse);
    }
    m_output->write(m_bytes);
    m_bytes.clear();
}

void EscposPaper::use(TextStyle style)
{
    if (style.bold != m_style.bold)
        m_bytes += setBold(style.bold);
    if (style.doubleHeight != m_style.doubleHeight)
        m_bytes += setDoubleHeight(style.doubleHeight);
    m_style = style;
}

void EscposPaper::usePage(quint8 page)
{
    if (page != m_page)
        m_bytes += selectCodePage(m_settings.codePages[page].number);
    m_page = page;
}

void EscposPaper::printLine()
{
    std::span<const Cell> cells = m_encoder.encode(m_line);
    while (!cells.empty()) {
        use(cells.front().style);
        usePage(cells.front().page);
        const auto isOther = [&](const Cell &cell) { return cell.style != m_style || cell.page != m_page; };
        const auto length = static_cast<std::size_t>(std::ranges::find_if(cells, isOther) - cells.begin());
        const qsizetype at = m_bytes.size();
        m_bytes.resize(at + static_cast<qsizetype>(length));
        std::ranges::transform(cells.first(length), m_bytes.data() + at,
                               [](const Cell &cell) { return static_cast<char>(cell.byte); });
        cells = cells.subspan(length);
    }
    m_line.clear();
}

void EscposPaper::printPicture()
{
    if (!m_logo) {
        m_logo = std::make_unique<Logo>(logoOf(m_settings));
        if (!m_logo->fault.isEmpty())
            printDiagnostic("Error in the method EscposPaper::logo( " + shownFileName(m_settings.logoFile)
                            + " ): " + m_logo->fault.toLocal8Bit());
    }
    const Raster &raster = m_logo->raster;
    for (int row = 0; row < raster.rows; row += rowsAtOnce) {
        m_bytes += printRaster(raster, row, std::min(rowsAtOnce, raster.rows - row));
        m_isBlank = false;
    }
}

void EscposPaper::handOver()
{
    if (m_settings.duplicate) // kept until all of it is there
        return;
    m_output->write(m_bytes);
    m_bytes.resize(0); // keeps its memory for the next line
}
