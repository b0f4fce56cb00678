#pragma once

#include "paper.h"

#include <QStringList>

/*
 * A paper of 20 columns that lists what comes to it, in the order it comes: "begin", "|text|", "bold|text|",
 * "high|text|", "endLine", "logo", "cut", "openDrawer", "end complete 1". What a driver lists outlives its
 * paper.
 */
class RecordingPaper : public Paper
{
public:
    explicit RecordingPaper(QStringList &calls);

    /* What width says of a text that holds a euro sign: two columns more than its characters. */
    int width(QStringView text) const override;
    int columns() const override;
    bool takesMore() const override;
    void begin(PrintOutput &output) override;
    void text(QStringView text, TextStyle style) override;
    void endLine() override;
    void logo() override;
    void cut() override;
    void openDrawer() override;
    void end(Ending ending, int copies) override;

    /* After so many lines the paper takes no more. */
    int mostLines = 1000;

private:
    QStringList &m_calls;
};
