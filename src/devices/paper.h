#pragma once

#include "ending.h"

#include <QStringView>

class PrintOutput;

/* How text looks. */
struct TextStyle
{
    bool bold = false;
    bool doubleHeight = false; // as many columns as ever

    bool operator==(const TextStyle &) const = default;
};

/*
 * What a printer prints on, as seen from the layout: text in a style, line by line. A paper knows nothing of
 * documents, profiles and settings; it alone knows how the printer is told, and gives that to the output.
 *
 * It is begun once, before all else, and ended once, after a fault in the document as well. Texts have no
 * line ends in them. A paper reports no failures: those are the output's.
 */
class Paper
{
public:
    Paper() = default;
    Paper(const Paper &) = delete;
    Paper &operator=(const Paper &) = delete;
    virtual ~Paper() = default;

    /* The columns of a line. */
    virtual int columns() const = 0;

    /* How many columns the text takes, which centring needs to know. */
    virtual int width(QStringView text) const = 0;

    /* Whether a document's control characters may reach the paper. Where not, each comes as a question mark.
     */
    virtual bool takesControlCharacters() const { return false; }

    /* False when what follows could not be printed anyway, so that long work may end. */
    virtual bool takesMore() const { return true; }

    /* Called before all else, with the output for all that follows, which outlives the paper's use of it. */
    virtual void begin(PrintOutput &output) = 0;

    /* Adds text to the line, and ends the line. */
    virtual void text(QStringView text, TextStyle style) = 0;
    virtual void endLine() = 0;

    /* Called where the document has its logo, where it is cut, and where the drawer opens. */
    virtual void logo() = 0;
    virtual void cut() = 0;
    virtual void openDrawer() = 0;

    /* Called after all else. Copies tells how often the document is to be printed, 1 or 2, which a paper may
     * leave out. */
    virtual void end(Ending ending, int copies) = 0;
};
