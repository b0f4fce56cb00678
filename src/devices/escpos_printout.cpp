#include "escpos_printout.h"

#include "escpos_paper.h"
#include "logo.h"

#include <algorithm>
#include <utility>

EscposPrintout::EscposPrintout(Printout &printout, PrinterSettings settings)
    : PrintoutPaper(printout, settings.columns)
    , m_settings(std::move(settings))
    , m_encoder(m_settings.pages())
{
}

int EscposPrintout::columns() const
{
    return m_settings.columns;
}

int EscposPrintout::width(QStringView text) const
{
    return m_encoder.width(text);
}

void EscposPrintout::text(QStringView text, TextStyle style)
{
    while (!text.isEmpty()) {
        if (m_line.text().size() == EscposPaper::longestLine)
            setLine();
        const QStringView next =
            text.first(std::min(text.size(), EscposPaper::longestLine - m_line.text().size()));
        m_line.append(next, style);
        text = text.sliced(next.size());
    }
}

void EscposPrintout::endLine()
{
    setLine();
    m_isBlank = false;
    PrintoutPaper::endLine();
}

void EscposPrintout::logo()
{
    if (!m_line.text().isEmpty())
        endLine();
    if (m_settings.storedLogo > 0) {
        PrintoutPaper::logo();
        m_isBlank = false;
    } else if (!m_settings.logoFile.isEmpty() && printout().logo.rows == 0
               && printout().logoFault.isEmpty()) {
        Logo read = EscposPaper::logoOf(m_settings);
        printout().logo = std::move(read.raster);
        printout().logoFault = std::move(read.fault);
    }
    if (printout().logo.rows > 0) {
        PrintoutPaper::logo();
        m_isBlank = false;
    }
}

void EscposPrintout::cut()
{
    if (!m_line.text().isEmpty())
        endLine();
    if (!m_isBlank && m_settings.cut != Cutter::none)
        PrintoutPaper::cut();
    m_isBlank = true;
}

void EscposPrintout::openDrawer()
{
    m_opensDrawer = true;
}

void EscposPrintout::end(Ending ending, int copies)
{
    if (!m_line.text().isEmpty())
        endLine();
    if (ending == Ending::incomplete) {
        text(EscposPaper::incompleteMark(), {.bold = true, .doubleHeight = true});
        endLine();
    }
    cut();
    if (m_opensDrawer && ending == Ending::complete)
        PrintoutPaper::openDrawer();
    PrintoutPaper::end(ending, m_settings.duplicate && ending == Ending::complete ? copies : 1);
}

// Neighbouring cells of one style are one run.
void EscposPrintout::setLine()
{
    std::span<const Cell> cells = m_encoder.encode(m_line);
    while (!cells.empty()) {
        const TextStyle style = cells.front().style;
        const auto end =
            std::ranges::find_if(cells, [style](const Cell &cell) { return cell.style != style; });
        QString shown;
        for (auto cell = cells.begin(); cell != end; ++cell)
            shown += QChar(cell->shown);
        addCharacters(shown, style);
        cells = {end, cells.end()};
    }
    m_line.clear();
}
