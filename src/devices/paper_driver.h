#pragma once

#include "paper.h"
#include "printer_driver.h"

#include <memory>

/*
 * A printer driver on a paper: turns the driver's operations into texts in a style, each placed on its line.
 * The paper is begun with the first text and ended by finish, or else when the driver goes.
 */
class PaperDriver : public PrinterDriver
{
public:
    /* Prints with the configuration, which outlives the driver, on the paper, and with that to the output, if
     * there is one. */
    PaperDriver(const TXConfiguration &settings, std::unique_ptr<PrintOutput> output,
                std::unique_ptr<Paper> paper);

    /* Ends a paper that was begun and not ended, as incomplete. */
    ~PaperDriver() override;

    /* A document that ended too early is told so on its paper, one that printed nothing too. */
    void finish(Ending ending) override;

    /* Control characters that the paper does not take come as question marks. */
    bool startElement(const QString &namespaceURI, const QString &localName, const QString &qName,
                      const QXmlAttributes &attributes) override;

    unsigned int getPaperWidth() const override;

    /* Plain text again; centring goes on. */
    void reset() override;
    void setBold() override;

    /* Plain text of the size: 0 is the normal one, all above are of double height. Both end centring. */
    void setCharSize() override;
    void setCharSize(int size) override;
    void setCenterJustify() override;

    /* Indents by the given blanks or, while centring, to the middle of the line. A text wider than the line
     * is not indented. A line end in the text ends the line. */
    void print(unsigned int indent, const QString &text) override;
    void println(unsigned int indent, const QString &text) override;
    void println(const QString &text) override;

    /* Opens the drawer when the profile says so. */
    void endSection() override;

    /* Called by endSection. */
    virtual void openCashDrawer();

    void printLogo() override;
    void fullCut() override;
    void generatePulse() override;

    /* Does nothing: what is due at the beginning comes with the first text. */
    void startSection() override;

protected:
    bool takesMore() const override;

    /* The columns in which text is centred: the profile's paper, as far as the device's goes. */
    virtual unsigned int lineWidth() const;

private:
    Paper &begunPaper();

    std::unique_ptr<Paper> m_paper;
    TextStyle m_style;
    enum class State { unused, begun, ended } m_state = State::unused;
};
