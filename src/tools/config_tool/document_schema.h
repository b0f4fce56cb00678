#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>

/* What the schema of the documents says of an element in the documents of a method. */
struct ElementRule
{
    QMap<QString, bool> attributes; // by name; true: required
    bool anyAttribute = false; // others as well
};

/* The elements that the documents of a method know, by name. */
struct MethodRule
{
    QMap<QString, ElementRule> elements;
    bool anyElement = false; // others as well, with any attributes
};

/*
 * The names in the schema of the documents: which elements each method knows, and which attributes each of
 * them. Where an element stands and how often counts for the schema, not for the printing program, and is
 * left out.
 */
struct DocumentSchema
{
    ElementRule root;
    QMap<QString, MethodRule> methods; // by name
};

/* Of a text in RELAX NG, as far as the schema of the documents makes use of it. */
DocumentSchema readDocumentSchema(const QByteArray &schema);

/* The schema that is installed with the programs. */
const DocumentSchema &documentSchema();
