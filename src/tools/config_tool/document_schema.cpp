#include "document_schema.h"

#include <QDomDocument>
#include <QHash>
#include <QResource>
#include <QSet>
#include <QStringList>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

using Visit = std::function<void(const QDomElement &pattern, bool required)>;

/* The elements and attributes among the patterns of a schema. */
class Patterns
{
public:
    explicit Patterns(const QDomElement &grammar)
    {
        for (QDomElement child = grammar.firstChildElement(); !child.isNull();
             child = child.nextSiblingElement())
            if (child.tagName() == "define"_L1)
                m_definitions.insert(child.attribute(u"name"_s), child);
    }

    /* Visits what stands in the pattern, not what stands in an element in it. */
    void visit(const QDomElement &pattern, const Visit &found) const { visit(pattern, true, found); }

    /* The pattern, or what it refers to. */
    QDomElement resolved(const QDomElement &pattern) const
    {
        return pattern.tagName() == "ref"_L1 ? m_definitions.value(pattern.attribute(u"name"_s)) : pattern;
    }

private:
    void visit(const QDomElement &parent, bool required, const Visit &found) const
    {
        for (QDomElement child = parent.firstChildElement(); !child.isNull();
             child = child.nextSiblingElement()) {
            const QDomElement pattern = resolved(child);
            const QString kind = pattern.tagName();
            if (kind == "element"_L1 || kind == "attribute"_L1)
                found(pattern, required);
            else
                visit(pattern,
                      required && kind != "optional"_L1 && kind != "zeroOrMore"_L1 && kind != "choice"_L1,
                      found);
        }
    }

    QHash<QString, QDomElement> m_definitions;
};

ElementRule elementRule(const Patterns &patterns, const QDomElement &element)
{
    ElementRule rule;
    patterns.visit(element, [&](const QDomElement &pattern, bool required) {
        if (pattern.tagName() != "attribute"_L1)
            return;
        if (pattern.hasAttribute(u"name"_s))
            rule.attributes.insert(pattern.attribute(u"name"_s), required);
        else
            rule.anyAttribute = true;
    });
    return rule;
}

/* Adds the elements in a pattern, and those in them, to what a method knows. */
void addElements(const Patterns &patterns, const QDomElement &parent, MethodRule &method)
{
    patterns.visit(parent, [&](const QDomElement &pattern, bool) {
        if (pattern.tagName() != "element"_L1)
            return;
        const QString name = pattern.attribute(u"name"_s);
        if (name.isEmpty()) {
            method.anyElement = true; // and so are those in it
        } else if (!method.elements.contains(name)) {
            method.elements.insert(name, elementRule(patterns, pattern));
            addElements(patterns, pattern, method);
        }
    });
}

/* The names of the method that a pattern's documents begin with. */
QStringList methodNames(const Patterns &patterns, const QDomElement &document)
{
    QStringList names;
    patterns.visit(document, [&](const QDomElement &element, bool) {
        if (element.attribute(u"name"_s) != "method"_L1)
            return;
        const QDomNodeList values = element.elementsByTagName(u"value"_s);
        for (int i = 0; i < values.count(); ++i)
            names.append(values.at(i).toElement().text());
    });
    return names;
}

} // namespace

DocumentSchema readDocumentSchema(const QByteArray &schema)
{
    QDomDocument document;
    document.setContent(schema);
    const QDomElement grammar = document.documentElement();
    const Patterns patterns(grammar);
    const QDomElement root = grammar.firstChildElement(u"start"_s).firstChildElement(u"element"_s);

    DocumentSchema rules;
    rules.root = elementRule(patterns, root);
    const QDomElement kinds = root.firstChildElement(u"choice"_s);
    for (QDomElement kind = kinds.firstChildElement(); !kind.isNull(); kind = kind.nextSiblingElement()) {
        const QDomElement kindOfDocument = patterns.resolved(kind);
        MethodRule rule;
        addElements(patterns, kindOfDocument, rule);
        for (const QString &name : methodNames(patterns, kindOfDocument))
            rules.methods.insert(name, rule);
    }
    return rules;
}

const DocumentSchema &documentSchema()
{
    static const DocumentSchema schema =
        readDocumentSchema(QResource(u":/schema/tavolux-document.rng"_s).uncompressedData());
    return schema;
}
