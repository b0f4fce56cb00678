#include "paper_driver.h"

#include "print_output.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

bool isControlCharacter(QChar character)
{
    return character < QChar(0x20) || (character >= QChar(0x7F) && character < QChar(0xA0));
}

bool hasControlCharacter(const QXmlAttributes &attributes)
{
    for (int i = 0; i < attributes.count(); ++i) {
        const QString value = attributes.value(i); // not to be copied, as one that could be changed would be
        if (std::ranges::any_of(value, isControlCharacter))
            return true;
    }
    return false;
}

QXmlAttributes withoutControlCharacters(const QXmlAttributes &attributes)
{
    QXmlAttributes harmless;
    for (int i = 0; i < attributes.count(); ++i) {
        QString value = attributes.value(i);
        std::ranges::replace_if(value, isControlCharacter, QChar(u'?'));
        harmless.append(attributes.qName(i), attributes.uri(i), attributes.localName(i), value);
    }
    return harmless;
}

} // namespace

PaperDriver::PaperDriver(const TXConfiguration &settings, std::unique_ptr<PrintOutput> output,
                         std::unique_ptr<Paper> paper)
    : PrinterDriver(settings, std::move(output))
    , m_paper(std::move(paper))
{
}

PaperDriver::~PaperDriver()
{
    if (m_state == State::begun)
        PaperDriver::finish(Ending::incomplete);
}

void PaperDriver::finish(Ending ending)
{
    if (m_state == State::begun || (m_state == State::unused && ending == Ending::incomplete))
        begunPaper().end(ending, printDuplicate() ? 2 : 1);
    m_state = State::ended;
    PrinterDriver::finish(ending);
}

bool PaperDriver::startElement(const QString &namespaceURI, const QString &localName, const QString &qName,
                               const QXmlAttributes &attributes)
{
    if (!m_paper->takesControlCharacters() && hasControlCharacter(attributes))
        return PrinterDriver::startElement(namespaceURI, localName, qName,
                                           withoutControlCharacters(attributes));
    return PrinterDriver::startElement(namespaceURI, localName, qName, attributes);
}

unsigned int PaperDriver::getPaperWidth() const
{
    return static_cast<unsigned int>(m_paper->columns());
}

void PaperDriver::reset()
{
    m_style = {};
}

void PaperDriver::setBold()
{
    m_style.bold = true;
}

void PaperDriver::setCharSize()
{
    setCharSize(0);
}

void PaperDriver::setCharSize(int size)
{
    m_style = {.bold = false, .doubleHeight = size > 0};
    justification = Justification::left;
}

void PaperDriver::setCenterJustify()
{
    justification = Justification::center;
}

void PaperDriver::print(unsigned int indent, const QString &text)
{
    Paper &paper = begunPaper();
    const bool isCentred = justification == Justification::center;
    if (isCentred || indent > 0) {
        const qsizetype left = qsizetype(lineWidth()) - paper.width(text);
        const qsizetype blanks = left < 0 ? 0 : isCentred ? left / 2 : indent;
        if (blanks > 0)
            paper.text(QString(blanks, u' '), m_style);
    }

    QStringView rest = text;
    for (qsizetype end = rest.indexOf(u'\n'); end >= 0; end = rest.indexOf(u'\n')) {
        paper.text(rest.first(end), m_style);
        paper.endLine();
        rest = rest.sliced(end + 1);
    }
    paper.text(rest, m_style);
}

void PaperDriver::println(unsigned int indent, const QString &text)
{
    print(indent, text);
    begunPaper().endLine();
}

void PaperDriver::println(const QString &text)
{
    println(0, text);
}

void PaperDriver::endSection()
{
    if (profile.openCashDrawer)
        openCashDrawer();
}

void PaperDriver::openCashDrawer()
{
    generatePulse();
}

void PaperDriver::printLogo()
{
    begunPaper().logo();
}

void PaperDriver::fullCut()
{
    begunPaper().cut();
}

void PaperDriver::generatePulse()
{
    begunPaper().openDrawer();
}

void PaperDriver::startSection() { }

bool PaperDriver::takesMore() const
{
    return PrinterDriver::takesMore() && m_paper->takesMore();
}

unsigned int PaperDriver::lineWidth() const
{
    const int columns = m_paper->columns();
    return static_cast<unsigned int>(profile.paperWidth > 0 ? std::min(profile.paperWidth, columns)
                                                            : columns);
}

Paper &PaperDriver::begunPaper()
{
    if (m_state == State::unused) {
        m_paper->begin(output());
        m_state = State::begun;
    }
    return *m_paper;
}
