#include "recording_paper.h"

using namespace Qt::StringLiterals;

RecordingPaper::RecordingPaper(QStringList &calls)
    : m_calls(calls)
{
}

int RecordingPaper::width(QStringView text) const
{
    return static_cast<int>(text.size() + 2 * text.count(u'\u20AC'));
}

int RecordingPaper::columns() const
{
    return 20;
}

bool RecordingPaper::takesMore() const
{
    return m_calls.count(u"endLine"_s) < mostLines;
}

void RecordingPaper::begin(PrintOutput &)
{
    m_calls += u"begin"_s;
}

void RecordingPaper::text(QStringView text, TextStyle style)
{
    m_calls += (style.bold ? u"bold"_s : QString()) + (style.doubleHeight ? u"high"_s : QString()) + u'|'
        + text.toString() + u'|';
}

void RecordingPaper::endLine()
{
    m_calls += u"endLine"_s;
}

void RecordingPaper::logo()
{
    m_calls += u"logo"_s;
}

void RecordingPaper::cut()
{
    m_calls += u"cut"_s;
}

void RecordingPaper::openDrawer()
{
    m_calls += u"openDrawer"_s;
}

void RecordingPaper::end(Ending ending, int copies)
{
    m_calls += u"end %1 %2"_s.arg(ending == Ending::complete ? u"complete" : u"incomplete").arg(copies);
}
