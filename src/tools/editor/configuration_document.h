#pragma once

#include "configuration_check.h"
#include "configuration_text.h"
#include "tx_configuration.h"
#include "write_file.h"

#include <QHash>
#include <QObject>
#include <QTimer>
#include <QUndoStack>

#include <optional>
#include <vector>

/*
 * The configuration that is edited. Its bytes are the truth: every edit is a change of bytes, which can be
 * undone, and all else is made of the bytes anew. Saving writes them down and does nothing else.
 */
class ConfigurationDocument : public QObject
{
    Q_OBJECT

public:
    explicit ConfigurationDocument(QObject *parent = nullptr);

    /* Empty for a configuration that no file has been named for. */
    const QString &path() const { return m_path; }

    const libconfig::ConfigurationText &text() const { return m_text; }

    /* What a print would read. */
    const TXConfiguration &configuration() const { return m_configuration; }

    /* Whether the bytes are others than those on disk, as far as is known. */
    bool isModified() const;

    QUndoStack &undoStack() { return m_undoStack; }

    /* Reads a file of the kind "cfg" or "xml", by its content unless given, and returns an empty text; or
     * returns why it cannot be edited, in English, and keeps what was read before. */
    QString open(const QString &path, const QString &kind = {});

    /* Begins with a text that is not on disk yet. */
    void begin(const QString &path, const QByteArray &bytes);

    /* Whether the file on disk is another than the one read or written last. */
    bool changedOnDisk() const;

    /* Writes the bytes to the path, which is the document's from then on, or leaves the file as it was.
     * Folders that are missing are made for a file that was never on disk. */
    WriteResult save(const QString &path);

    /* Makes a change of the text as it stands, as one step to undo with this name. One that changes nothing
     * is no step. */
    void apply(const libconfig::TextChange &change, const QString &name);

    /* The same for all that parts the text from another one. */
    void replace(const QByteArray &bytes, const QString &name);

    /* The setting or section whose text was changed last, by undoing as well. */
    int entryChangedLast() const;

    /* What there is to find in the text as it stands. */
    const std::vector<Finding> &findings();

    /* The texts of those about a key, in a line, as they were found last: maybe not of the text as it stands
     * until findingsChanged() comes. */
    QStringList findingsAt(const QString &key, int line) const;

    /* The findings that were not there when it was read or saved last. */
    QStringList newFindings();

Q_SIGNALS:
    /* The text is another. */
    void changed();

    /* Sooner or later after the text, when nothing else is to be done. */
    void findingsChanged();

    void modifiedChanged();

private:
    friend class ChangeStep;

    void adopt(const QString &path, libconfig::ConfigurationText text,
               const std::optional<QByteArray> &onDisk);
    void setText(libconfig::ConfigurationText text);
    void change(const libconfig::TextChange &change);
    QStringList findingTexts();

    QString m_path;
    libconfig::ConfigurationText m_text;
    TXConfiguration m_configuration{{}, {}};
    std::optional<QByteArray> m_onDisk = QByteArray(); // none: no file yet, or it is not known what is in it
    QUndoStack m_undoStack;
    qsizetype m_changedAt = 0;
    std::optional<std::vector<Finding>> m_findings; // none: the text is another since
    QHash<std::pair<QString, int>, QStringList> m_findingsByPlace; // by key and line
    QStringList m_accepted; // texts of findings
    QTimer m_checkTimer;
};
