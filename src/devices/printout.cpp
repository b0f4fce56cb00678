#include "printout.h"

#include <algorithm>
#include <utility>

bool PrintedLine::isDoubleHeight() const
{
    return std::ranges::any_of(runs, [](const PrintedRun &run) { return run.style.doubleHeight; });
}

QString PrintedLine::text() const
{
    QString text;
    int column = 0;
    for (const PrintedRun &run : runs) {
        text.append(QString(run.column - column, u' ')).append(run.text);
        column = run.column + run.columns;
    }
    return text;
}

void Printout::setColumns(int wanted)
{
    columns = std::clamp(wanted, 1, maximumColumns);
}

QString Printout::text() const
{
    QString text;
    for (const PrintedLine &line : lines)
        if (line.kind == PrintedLine::Kind::text)
            text.append(line.text()).append(u'\n');
    return text;
}

PrintoutPaper::PrintoutPaper(Printout &printout, int columns)
    : m_printout(printout)
{
    m_printout = {};
    m_printout.setColumns(columns);
}

void PrintoutPaper::begin(PrintOutput &) { }

void PrintoutPaper::endLine()
{
    keepLine();
}

void PrintoutPaper::logo()
{
    addSign(PrintedLine::Kind::logo);
}

void PrintoutPaper::cut()
{
    addSign(PrintedLine::Kind::cut);
}

void PrintoutPaper::openDrawer()
{
    addSign(PrintedLine::Kind::drawer);
}

void PrintoutPaper::end(Ending ending, int copies)
{
    if (!m_line.runs.empty())
        keepLine();
    m_printout.ending = ending;
    m_printout.copies = copies;
}

void PrintoutPaper::addCharacters(QStringView text, TextStyle style)
{
    while (!text.isEmpty()) {
        if (m_column >= m_printout.columns)
            goOn();
        const int fitting = static_cast<int>(std::min<qsizetype>(text.size(), m_printout.columns - m_column));
        addRun({text.first(fitting).toString(), m_column, fitting, false, style});
        text = text.sliced(fitting);
    }
}

void PrintoutPaper::addSingle(const QString &character, int columns, TextStyle style)
{
    if (m_column > 0 && m_column + columns > m_printout.columns)
        goOn();
    addRun({character, m_column, columns, true, style});
}

// Neighbours in one style are one run, so that a line is drawn with few calls.
void PrintoutPaper::addRun(PrintedRun run)
{
    m_column += run.columns;
    PrintedRun *const last = m_line.runs.empty() ? nullptr : &m_line.runs.back();
    if (last && last->style == run.style && !last->isSingle && !run.isSingle) {
        last->text += run.text;
        last->columns += run.columns;
    } else {
        m_line.runs.push_back(std::move(run));
    }
}

// The line is full.
void PrintoutPaper::goOn()
{
    keepLine();
    m_line.continued = true;
}

// A sign stands on a line of its own, after the line that was begun.
void PrintoutPaper::addSign(PrintedLine::Kind kind)
{
    if (!m_line.runs.empty())
        keepLine();
    m_line.kind = kind;
    keepLine();
}

void PrintoutPaper::keepLine()
{
    PrintedLine line = std::exchange(m_line, {});
    m_column = 0;
    ++m_printout.lineCount;
    if (m_printout.lineCount > Printout::maximumLines || m_characters > Printout::maximumCharacters)
        return;
    for (const PrintedRun &run : line.runs)
        m_characters += run.text.size();
    m_printout.lines.push_back(std::move(line));
}
