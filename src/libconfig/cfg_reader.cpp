/*
 * The reader of the "cfg" kind. Bytes are Latin-1 characters, and only four of them mean anything:
 *
 *     name : anything { statements } anything ;        a section
 *     name = value ;                                   a setting
 *
 * There is no comment, no escape and no line structure. Nothing is ever refused: text that ends no statement
 * joins the name that follows it, and what is missing at the end of the file is taken as given.
 */
#include "config.h"
#include "diagnostic.h"
#include "file_name.h"
#include "read_file.h"

#include <string>

using namespace Qt::StringLiterals;

namespace libconfig {

namespace {

constexpr int endOfFile = std::ifstream::traits_type::eof();

QString trimmed(const std::string &bytes)
{
    return QString::fromLatin1(bytes.data(), static_cast<qsizetype>(bytes.size())).trimmed();
}

} // namespace

bool Config::openFile(const QString &name)
{
    closeFile();
    // A directory opens as a stream that never ends, and a FIFO waits for a writer.
    if (isRegularFile(name))
        (void)m_file.open(fileNameBytes(name).constData(), std::ios::in | std::ios::binary);
    m_inputStream.rdbuf(&m_file);
    if (m_file.is_open())
        return true;
    printDiagnostic("Error in the method FileReader::open( " + shownFileName(name) + " ): File Not Found");
    return false;
}

bool Config::openFile()
{
    return openFile(m_fileName);
}

void Config::closeFile()
{
    m_file.close();
    m_text.str({});
}

// Straight from the buffer: a formatted stream's checks for every byte would be half the time of loading.
int Config::nextByte()
try {
    return m_inputStream.rdbuf()->sbumpc();
} catch (const std::ios_base::failure &) { // a file that cannot be read further ends there
    return endOfFile;
}

bool Config::jump(char c)
{
    for (int byte = nextByte(); byte != endOfFile; byte = nextByte())
        if (byte == std::ifstream::traits_type::to_int_type(c))
            return true;
    return false;
}

void Config::loadFile()
{
    // Without a file the stream is at its end from the start, and the store stays empty.
    openFile();
    loadStatements();
}

void Config::loadStatements()
{
    const QDomElement root = newRootElement();
    const bool endedByBrace = readStatements(root, *m_document);
    if (!endedByBrace) // Deliberate: after a brace that closes no section the stream stays open.
        closeFile();
}

void Config::loadFile(const QString &name, const QDomNode &parent)
{
    if (m_nesting == maximumNesting) {
        // Whoever nests this deep writes no configuration: reading ends, instead of the stack.
        closeFile();
        return;
    }
    ++m_nesting;
    readStatements(m_document->createElement(name), parent);
    --m_nesting;
}

// Reads statements into the section up to its closing brace (true) or the end of the file (false). The
// section enters its parent with its first statement; one without any never does, nor does one without a
// name.
bool Config::readStatements(QDomElement section, QDomNode parent)
{
    const auto enterParent = [&] {
        if (!parent.isNull() && section.parentNode().isNull())
            parent.appendChild(section);
    };

    std::string text;
    for (int byte = nextByte(); byte != endOfFile; byte = nextByte()) {
        switch (byte) {
        case ':':
            jump('{');
            enterParent();
            loadFile(trimmed(text), section);
            text.clear();
            break;
        case '=':
            section.setAttribute(trimmed(text), readValue());
            enterParent();
            text.clear();
            break;
        case '}':
            jump(';');
            return true;
        default:
            text.push_back(static_cast<char>(byte));
        }
    }
    return false;
}

// Quotes guard the blanks inside them from trimming, so they are removed only after it.
QString Config::readValue()
{
    std::string value;
    std::getline(m_inputStream, value, ';');
    return trimmed(value).remove(u'"');
}

} // namespace libconfig
