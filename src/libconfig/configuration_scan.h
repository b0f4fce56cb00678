#pragma once

#include <QByteArray>
#include <QString>

#include <vector>

/* A part of a text, in bytes: from the first up to, not including, the last. */
struct Span
{
    qsizetype begin = 0;
    qsizetype end = 0;

    qsizetype size() const { return end - begin; }
    bool operator==(const Span &) const = default;
};

/* One thing that a configuration file says, where it says it. */
struct Statement
{
    enum class Kind {
        sectionBegins,
        sectionEnds,
        setting,
        skippedText, // between a section's colon and its brace, or between its closing brace and the
                     // semicolon
        leftoverText, // belongs to nothing
        remark, // a comment and the like, in an "xml" file
    };

    Kind kind;
    int line; // in an "xml" file that of the tag it stands in
    QString name = {}; // of a section or a setting; the text, where it is one that the reader passes over
    QString value = {};
    bool complete = true; // false: the file ends before the brace or the semicolon that is due

    // Where the text has it, without the blanks around it: from the name to the brace or the semicolon, from
    // the closing brace to its semicolon, or the tag or attribute. Of an element that one tag begins and ends
    // the end is empty.
    Span span = {};
    Span valueSpan = {}; // as it is written: in "cfg" text with its quotes, in "xml" text between them
};

/*
 * What a configuration file says, in the order of the file and exactly as the store reads it, with what the
 * store passes over in silence. A section nested too deep is the last statement, as it ends the reading, and
 * so is the end of a section that never began.
 */
struct Scan
{
    std::vector<Statement> statements;

    // "xml" only: why the store refuses the whole file, and whether its first node is its root element, below
    // which alone the store looks.
    QString fault = {};
    int faultLine = 0;
    bool beginsWithRoot = true;
};

Scan scanCfg(const QByteArray &text);
Scan scanXml(const QByteArray &text);

/* The kind of a configuration by its content: "xml" when it begins with a tag, else "cfg". */
QString kindOfConfiguration(const QByteArray &text);

/* The file's kind is "cfg" or "xml". */
Scan scanConfiguration(const QByteArray &text, const QString &kind);
