#include "configuration_document.h"

#include "configuration_scan.h"
#include "file_name.h"
#include "read_file.h"

#include <QUndoCommand>

#include <algorithm>
#include <filesystem>

using namespace Qt::StringLiterals;
using libconfig::ConfigurationText;
using libconfig::TextChange;

/* One step to undo. */
class ChangeStep : public QUndoCommand
{
public:
    ChangeStep(ConfigurationDocument &document, TextChange change, const QString &name)
        : QUndoCommand(name)
        , m_document(document)
        , m_change(std::move(change))
    {
    }

    void redo() override { m_document.change(m_change); }
    void undo() override { m_document.change(m_change.reversed()); }

private:
    ConfigurationDocument &m_document;
    TextChange m_change;
};

ConfigurationDocument::ConfigurationDocument(QObject *parent)
    : QObject(parent)
{
    m_checkTimer.setSingleShot(true);
    m_checkTimer.setInterval(0);
    connect(&m_checkTimer, &QTimer::timeout, this, [this] { findings(); });
}

bool ConfigurationDocument::isModified() const
{
    return m_onDisk != m_text.text();
}

QString ConfigurationDocument::open(const QString &path, const QString &kind)
{
    const FileContent file = readRegularFile(path);
    if (!file.fault.isEmpty())
        return file.fault;
    ConfigurationText text(file.bytes, kind.isEmpty() ? recognizedKind(file.bytes) : kind);
    if (!text.fault().isEmpty())
        return text.fault();
    adopt(path, std::move(text), file.bytes);
    return {};
}

void ConfigurationDocument::begin(const QString &path, const QByteArray &bytes)
{
    adopt(path, ConfigurationText(bytes, recognizedKind(bytes)), std::nullopt);
}

void ConfigurationDocument::adopt(const QString &path, ConfigurationText text,
                                  const std::optional<QByteArray> &onDisk)
{
    m_path = path;
    m_onDisk = onDisk;
    m_changedAt = 0;
    m_undoStack.clear();
    setText(std::move(text));
    Q_EMIT changed();
    Q_EMIT modifiedChanged();
    m_accepted = findingTexts();
}

void ConfigurationDocument::setText(ConfigurationText text)
{
    m_text = std::move(text);
    m_configuration.readText(m_text.text(), m_text.kind());
    m_findings.reset();
    m_checkTimer.start();
}

bool ConfigurationDocument::changedOnDisk() const
{
    const FileContent file = readRegularFile(m_path);
    return m_onDisk ? !file.fault.isEmpty() || file.bytes != *m_onDisk : !file.isMissing;
}

WriteResult ConfigurationDocument::save(const QString &path)
{
    if (!m_onDisk) {
        std::error_code error;
        const std::filesystem::path folder =
            std::filesystem::path(fileNameBytes(path).toStdString()).parent_path();
        if (!folder.empty())
            create_directories(folder, error);
        if (error)
            return {.fault = qt_error_string(error.value())};
    }
    WriteResult result = replaceFile(path, m_text.text());
    if (!result)
        return result;
    m_path = path;
    m_onDisk = m_text.text();
    m_accepted = findingTexts();
    Q_EMIT modifiedChanged();
    return result;
}

void ConfigurationDocument::apply(const TextChange &change, const QString &name)
{
    if (change && change.removed != change.inserted)
        m_undoStack.push(new ChangeStep(*this, change, name)); // which the stack owns
}

void ConfigurationDocument::replace(const QByteArray &bytes, const QString &name)
{
    const QByteArray &old = m_text.text();
    const auto [begin, otherBegin] = std::ranges::mismatch(old, bytes);
    const qsizetype same = begin - old.begin();
    qsizetype sameAtEnd = 0;
    while (sameAtEnd < std::min(old.size(), bytes.size()) - same
           && old[old.size() - 1 - sameAtEnd] == bytes[bytes.size() - 1 - sameAtEnd])
        ++sameAtEnd;
    apply({.position = same,
           .removed = old.sliced(same, old.size() - same - sameAtEnd),
           .inserted = bytes.sliced(same, bytes.size() - same - sameAtEnd)},
          name);
}

void ConfigurationDocument::change(const TextChange &change)
{
    m_changedAt = change.position + change.inserted.size();
    setText(ConfigurationText(change.appliedTo(m_text.text()), m_text.kind()));
    Q_EMIT changed();
    Q_EMIT modifiedChanged();
}

// The innermost one at the end of the change, where what was added ends.
int ConfigurationDocument::entryChangedLast() const
{
    int innermost = ConfigurationText::wholeFile;
    for (int index = 1; index < static_cast<int>(m_text.entries().size()); ++index)
        if (const auto &span = m_text.entry(index).span; span.begin <= m_changedAt && m_changedAt <= span.end)
            innermost = index;
    return innermost;
}

const std::vector<Finding> &ConfigurationDocument::findings()
{
    if (!m_findings) {
        m_checkTimer.stop();
        m_findings = checkConfiguration(m_text.text(), m_text.kind());
        m_findingsByPlace.clear();
        for (const Finding &finding : *m_findings)
            m_findingsByPlace[{finding.key, finding.line}] << finding.text;
        Q_EMIT findingsChanged();
    }
    return *m_findings;
}

QStringList ConfigurationDocument::findingsAt(const QString &key, int line) const
{
    return m_findingsByPlace.value({key, line});
}

QStringList ConfigurationDocument::findingTexts()
{
    QStringList texts;
    for (const Finding &finding : findings())
        texts << finding.text;
    return texts;
}

QStringList ConfigurationDocument::newFindings()
{
    QStringList texts = findingTexts();
    for (const QString &accepted : std::as_const(m_accepted))
        texts.removeOne(accepted);
    return texts;
}
