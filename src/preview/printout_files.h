#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

class PrintoutPainter;

/* The kinds of files that show a printout. */
enum class PrintoutFormat { png, svg, pdf, txt };

/* The format of this name, such as "png", or of the file with this name; none for any other. */
std::optional<PrintoutFormat> formatNamed(const QString &name);
std::optional<PrintoutFormat> formatOfFile(const QString &fileName);

/* A printout as the bytes of a file, or why there is none, in one line. */
struct PrintoutFile
{
    QByteArray bytes;
    QString error;
};

/* The painter's printout in the format: a PNG of one pixel for each dot, an SVG or PDF in which text is text,
 * or the text alone. */
PrintoutFile printoutFile(const PrintoutPainter &painter, PrintoutFormat format);
