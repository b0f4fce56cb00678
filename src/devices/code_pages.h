#pragma once

#include <QLatin1StringView>
#include <QStringEncoder>
#include <QStringView>

#include <optional>

/*
 * The code pages: tables of 256 characters, of which every printer has a handful. The lower half is ASCII in
 * all of them.
 */
enum class CodePage : quint8 {
    cp437,
    cp850,
    cp852,
    cp858,
    cp866,
    cp1250,
    cp1251,
    cp1252,
    cp1253,
    cp1254,
    cp1257,
    iso8859_15,
};

/* The name in manuals and in the configuration, such as "858" and "8859-15", and the page of a name. */
QLatin1StringView codePageName(CodePage page);
std::optional<CodePage> codePageOfName(QStringView name);

/* Looks the bytes of characters up in one page. */
class CodePageEncoder
{
public:
    /* Costs nothing yet: the first look-up opens the toolkit's table. */
    explicit CodePageEncoder(CodePage page);

    /* The byte of a character above ASCII, 0x80 or more; 0 when the page lacks the character, or the toolkit
     * the page: it has them all when it was built with ICU. */
    quint8 byte(char16_t character);

private:
    CodePage m_page;
    std::optional<QStringEncoder> m_encoder;
};
