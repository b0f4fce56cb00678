#include "text_difference.h"

#include <QByteArrayList>

#include <algorithm>

namespace {

// The lines of a text, each in a form that can be seen.
QByteArrayList visibleLines(const QByteArray &text)
{
    QByteArrayList lines;
    QByteArray line;
    for (const char byte : text) {
        if (byte == '\n') {
            lines.append(line + "\\n");
            line.clear();
        } else if ((byte >= 0 && byte < ' ') || byte == '\x7F') {
            line += "\\x" + QByteArray(1, byte).toHex().toUpper();
        } else {
            line += byte;
        }
    }
    if (!line.isEmpty())
        lines.append(line);
    return lines;
}

} // namespace

QByteArray textDifference(const QByteArray &expected, const QByteArray &actual)
{
    if (expected == actual)
        return {};
    const QByteArrayList before = visibleLines(expected);
    const QByteArrayList after = visibleLines(actual);
    const auto firstDifference = std::ranges::mismatch(before, after);
    const auto lastDifference =
        std::mismatch(before.rbegin(), std::make_reverse_iterator(firstDifference.in1), after.rbegin(),
                      std::make_reverse_iterator(firstDifference.in2));

    QByteArray text;
    if (firstDifference.in1 != before.begin())
        text += "  " + *std::prev(firstDifference.in1) + '\n';
    for (auto line = firstDifference.in1; line != lastDifference.first.base(); ++line)
        text += "- " + *line + '\n';
    for (auto line = firstDifference.in2; line != lastDifference.second.base(); ++line)
        text += "+ " + *line + '\n';
    if (lastDifference.first.base() != before.end())
        text += "  " + *lastDifference.first.base() + '\n';
    return text;
}
