#pragma once

#include "printout.h"

#include <QFont>
#include <QRect>
#include <QSize>
#include <QStringList>

#include <optional>
#include <vector>

class QPainter;
class QPaintDevice;

/*
 * Draws a printout as the receipt that it makes: every printer dot is one unit, a character 12 by 24 of them,
 * a line 30. The one painter for pictures, pages and windows.
 */
class PrintoutPainter
{
public:
    static constexpr int dotsPerInch = 203;
    static constexpr int characterWidth = 12;
    static constexpr int characterHeight = 24;
    static constexpr int linePitch = 30;

    /* What a receipt is drawn in: the fixed-width font of the machine, at the size of the grid on the device.
     * None when the machine has no such font. Needs the application object. */
    static std::optional<QFont> gridFont(const QPaintDevice &device);

    /* The remarks stand beneath the paper, one paragraph each. Lines that are marked have a bright ground. */
    explicit PrintoutPainter(Printout printout, QStringList remarks = {}, std::vector<bool> marked = {});

    const Printout &printout() const { return m_printout; }
    const QStringList &remarks() const { return m_remarks; }

    /* The size of the whole picture. */
    QSize size() const { return m_size; }

    /* The vertical positions, from 0 to the height of the picture, where it can be cut into pieces none of
     * which is higher than the given height. No line is cut through. */
    std::vector<int> pieces(int height) const;

    /* Where the line of this index begins and ends, and the first line that is marked. */
    int lineTop(std::size_t line) const { return m_lineTops[line]; }
    std::optional<std::size_t> firstMarkedLine() const;

    /* Draws what lies in the part of the picture, which the painter has at the same coordinates. */
    void paint(QPainter &painter, const QRect &part) const;

private:
    void paintPaper(QPainter &painter, const QRect &part) const;
    void paintLine(QPainter &painter, const QFont &font, std::size_t index) const;
    void paintRemarks(QPainter &painter, const QFont &font) const;
    int paperRight() const;
    int paperBottom() const;

    Printout m_printout;
    QStringList m_remarks;
    QStringList m_remarkLines;
    std::vector<bool> m_marked;
    std::vector<int> m_lineTops; // of each line, and where the last one ends
    QSize m_size;
};
