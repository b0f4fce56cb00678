#pragma once

#include <QXmlDefaultHandler>
#include <QXmlInputSource>

#include <cstdint>

/*
 * A document as the reader's input, which ends where going on would exhaust the machine: the reader descends
 * into nested markup by recursion, and holds whatever entities expand to in memory. It is to be installed as
 * the reader's declaration handler as well. No document of a restaurant comes near these bounds; one that
 * does is printed up to there.
 */
class BoundedDocument : public QXmlInputSource, public QXmlDefaultHandler
{
public:
    /* Bytes of stack for the reader: more than 2,000 nested elements. */
    static constexpr std::uintptr_t maximumStack = 1'048'576;

    // Of the entities that a document declares for itself, which may hold text only. The reader compares each
    // with all others, and allows those made of others as many characters.
    static constexpr int maximumEntities = 100;
    static constexpr int longestEntity = 4096;
    static constexpr int maximumReferences = 10'000;

    explicit BoundedDocument(QIODevice *device);

    void fetchData() override;
    bool internalEntityDecl(const QString &name, const QString &value) override;

private:
    std::uintptr_t stackBase;
    int entities = 0;
    qsizetype references = 0;
};
