#pragma once

#include "paper.h"

#include <QStringEncoder>

/*
 * Plain text in UTF-8, with a line feed at the end of each line. It shows neither styles nor logos, is not
 * cut, and takes every character as it comes: each counts as one column.
 */
class TextPaper : public Paper
{
public:
    /* A paper of so many columns. */
    explicit TextPaper(int columns);

    int columns() const override;
    int width(QStringView text) const override;
    bool takesControlCharacters() const override;
    void begin(PrintOutput &output) override;
    void text(QStringView text, TextStyle style) override;
    void endLine() override;
    void logo() override;
    void cut() override;
    void openDrawer() override;
    void end(Ending ending, int copies) override;

private:
    const int m_columns;
    // Keeps the first half of a surrogate pair until the second comes, with the next text.
    QStringEncoder m_encoder{QStringConverter::Utf8};
    PrintOutput *m_output = nullptr;
};
