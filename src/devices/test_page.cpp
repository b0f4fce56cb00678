#include "test_page.h"

#include "escpos_paper.h"
#include "logo.h"

using namespace Qt::StringLiterals;

namespace {

// Some from each page, so that a wrong number shows.
constexpr QStringView tellingCharacters =
    u"€£°§àèéìòùáíóúñçâêîôûäöüÄÖÜßãõåæøœšžčćłńśźżąęőșțĆŁÓŚŻБДЖЯбджяё¿¡┌─┐█";

class TestPage
{
public:
    TestPage(const PrinterSettings &settings, PrintOutput &output)
        : m_settings(settings)
        , m_paper(settings)
    {
        m_paper.begin(output);
    }

    void print()
    {
        line(u"TEST PAGE"_s, {.bold = true, .doubleHeight = true});
        line(m_settings.name + u": "_s + m_settings.model->name);
        printRuler();
        printStyles();
        for (qsizetype page = 0; page < m_settings.codePages.size(); ++page)
            printCodePage(page);
        printLogo();
        printEnd();
    }

private:
    /* A line, or more where the paper is narrow. */
    void line(QStringView text, TextStyle style = {})
    {
        while (!text.isEmpty()) {
            const QStringView fitting = text.left(m_settings.columns);
            m_paper.text(fitting, style);
            m_paper.endLine();
            text = text.sliced(fitting.size());
        }
    }

    void printRuler()
    {
        QString tens;
        QString ones;
        for (int column = 1; column <= m_settings.columns; ++column) {
            tens += column % 10 == 0 ? QChar(u'0' + column / 10 % 10) : QChar(u' ');
            ones += QChar(u'0' + column % 10);
        }
        m_paper.endLine();
        line(u"columns = %1"_s.arg(m_settings.columns));
        line(tens);
        line(ones);
    }

    void printStyles()
    {
        m_paper.endLine();
        line(u"Normal type"_s);
        line(u"Bold type"_s, {.bold = true});
        line(u"Double height"_s, {.doubleHeight = true});
    }

    void printCodePage(qsizetype place)
    {
        const auto &[page, number] = m_settings.codePages[place];
        CodePageEncoder encoder(page);
        QString characters;
        for (const QChar character : tellingCharacters)
            if (encoder.byte(character.unicode()) != 0)
                characters += character;

        m_paper.endLine();
        line(u"codePages: %1=%2%3"_s.arg(codePageName(page), QString::number(number),
                                         characters.contains(u'€') ? QString() : u", no euro sign"_s));
        for (qsizetype at = 0; at < characters.size(); at += m_settings.columns)
            m_paper.codePageLine(static_cast<quint8>(place),
                                 QStringView(characters).sliced(at).left(m_settings.columns));
    }

    void printLogo()
    {
        m_paper.endLine();
        if (m_settings.storedLogo > 0) {
            line(u"logo = stored:%1"_s.arg(m_settings.storedLogo));
        } else if (m_settings.logoFile.isEmpty()) {
            line(u"No logo"_s);
        } else {
            line(u"logo = "_s + m_settings.logoFile);
            if (const QString fault = EscposPaper::logoOf(m_settings).fault; !fault.isEmpty()) {
                line(u"is not printed: "_s + fault);
                return;
            }
        }
        m_paper.logo();
    }

    void printEnd()
    {
        m_paper.endLine();
        line(u"feed = %1"_s.arg(m_settings.feed));
        line(u"cut = "_s + cutterName(m_settings.cut));
        line(u"drawerPin = %1"_s.arg(m_settings.drawerPin));
        line(u"drawerPulse = %1, %2"_s.arg(m_settings.drawerPulse.onMilliseconds)
                 .arg(m_settings.drawerPulse.offMilliseconds));
        m_paper.openDrawer();
        m_paper.end(Ending::complete, 1);
    }

    const PrinterSettings &m_settings;
    EscposPaper m_paper;
};

} // namespace

void printTestPage(const PrinterSettings &settings, PrintOutput &output)
{
    TestPage(settings, output).print();
}
