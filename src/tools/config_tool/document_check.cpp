#include "document_check.h"

#include "document_schema.h"
#include "located_document.h"
#include "nearest_name.h"
#include "print_document.h"
#include "printer_driver.h"
#include "quoted.h"
#include "tx_configuration.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

const QString methodElement = u"method"_s;
const QString printingProgram = u"the printing program"_s;

QString suggestion(const QString &nearest)
{
    return nearest.isEmpty() ? QString() : u"; did you mean %1?"_s.arg(quoted(nearest));
}

class Check : public QXmlDefaultHandler
{
public:
    Check(const LocatedDocument &document, const TXConfiguration *configuration)
        : m_document(document)
        , m_configuration(configuration)
    {
    }

    bool startElement(const QString &, const QString &, const QString &name,
                      const QXmlAttributes &attributes) override
    {
        m_textIsNamed = false;
        if (name == methodElement)
            return beginMethod(attributes) && isWithinMaximum();
        if (m_method)
            checkElement(name, attributes);
        else
            checkEarlyElement(name, attributes);
        return isWithinMaximum();
    }

    bool characters(const QString &text) override
    {
        if (!text.trimmed().isEmpty() && !std::exchange(m_textIsNamed, true))
            add(m_document.lineOfText(),
                u"the text %1 is not printed: only attributes are"_s.arg(quoted(text.trimmed())));
        return isWithinMaximum();
    }

    /* What was found, when the reading ended so. */
    DocumentFindings findings(const Reading &reading)
    {
        if (!isWithinMaximum())
            add(m_found.wrong.back().line,
                u"after %1 findings the rest is not looked at"_s.arg(m_found.wrong.size()));
        else if (reading.end == Reading::End::fault)
            add(reading.line, u"%1; nothing is read from here on"_s.arg(reading.reason));
        else if (reading.complete() && !m_method)
            addMissingMethod();
        return m_found;
    }

private:
    void add(int line, const QString &text) { m_found.wrong.push_back({line, text}); }

    bool isWithinMaximum() const { return m_found.wrong.size() < DocumentFindings::maximum; }

    /* False when the printing program ends here. */
    bool beginMethod(const QXmlAttributes &attributes)
    {
        for (const auto &[line, name, key] : m_early)
            add(line, u"%1 stands before the method, where nothing is read"_s.arg(quoted(name)));
        m_early.clear();

        const QString name = attributes.value(u"name"_s);
        const DocumentSchema &schema = documentSchema();
        const auto method = schema.methods.constFind(name);
        if (method != schema.methods.cend()) {
            m_method = &*method;
            m_methodName = name;
            loadProfile();
            checkElement(methodElement, attributes);
            return true;
        }
        if (attributes.index(u"name"_s) < 0) {
            m_methodName = printingProgram;
            checkAttributes(methodElement, schema.methods.first().elements.value(methodElement), attributes);
        } else {
            add(m_document.lineOfAttribute(methodElement, u"name"_s),
                u"there is no method %1, so nothing is read from here on%2"_s.arg(
                    quoted(name), suggestion(nearestName(name, schema.methods.keys()))));
        }
        return false;
    }

    void loadProfile()
    {
        const auto type = std::ranges::find(documentTypes, PrinterDriver::documentTypeOf(m_methodName),
                                            &DocumentType::name);
        if (!m_configuration || type == documentTypes.end())
            return;
        m_keyPrefix = type->keyPrefix;
        m_profile = DocumentProfile::load(
            [&](QLatin1StringView setting) { return m_configuration->getStrValue(m_keyPrefix + setting); });
    }

    // Before the method, where the root may stand.
    void checkEarlyElement(const QString &name, const QXmlAttributes &attributes)
    {
        const int line = m_document.lineOfElement(name);
        if (m_rootLine == 0) {
            m_rootLine = line;
            m_methodName = printingProgram;
            checkAttributes(name, documentSchema().root, attributes);
        } else if (m_early.size() < DocumentFindings::maximum) {
            m_early.push_back({line, name});
        }
    }

    void addMissingMethod()
    {
        for (const auto &[line, name, key] : m_early)
            if (!nearestName(name, {methodElement}).isEmpty())
                return add(line,
                           u"%1 is no method, without which nothing is printed%2"_s.arg(
                               quoted(name), suggestion(methodElement)));
        add(m_rootLine, u"there is no method, without which nothing is printed"_s);
    }

    void checkElement(const QString &name, const QXmlAttributes &attributes)
    {
        const auto rule = m_method->elements.constFind(name);
        if (rule != m_method->elements.cend()) {
            checkAttributes(name, *rule, attributes);
            if (m_configuration)
                noteHidden(name, attributes);
        } else if (!m_method->anyElement) {
            add(m_document.lineOfElement(name),
                u"%1 is no element that %2 reads%3"_s.arg(
                    quoted(name), m_methodName, suggestion(nearestName(name, m_method->elements.keys()))));
        }
    }

    // A name that nothing reads is taken for the attribute that is missing, so that one slip is one finding.
    void checkAttributes(const QString &element, const ElementRule &rule, const QXmlAttributes &attributes)
    {
        QStringList missing;
        for (const QString &name : rule.attributes.keys())
            if (attributes.index(name) < 0)
                missing.append(name);

        for (int i = 0; i < attributes.count() && !rule.anyAttribute; ++i) {
            const QString name = attributes.qName(i);
            if (rule.attributes.contains(name))
                continue;
            const QString meant = nearestName(name, missing);
            missing.removeOne(meant);
            add(m_document.lineOfAttribute(element, name),
                u"%1 is no attribute of %2 that %3 reads%4"_s.arg(quoted(name), quoted(element), m_methodName,
                                                                  suggestion(meant)));
            if (!isWithinMaximum())
                return;
        }
        for (const QString &name : std::as_const(missing))
            if (rule.attributes.value(name))
                add(m_document.lineOfElement(element),
                    u"%1 has no attribute %2, which %3 reads"_s.arg(quoted(element), quoted(name),
                                                                    m_methodName));
    }

    void noteHidden(const QString &element, const QXmlAttributes &attributes)
    {
        for (const auto &[block, attribute, wanted] : switchedParts) {
            if (block != element || m_profile.*wanted
                || (!attribute.isEmpty() && attributes.value(attribute).isEmpty())
                || m_found.hidden.size() == DocumentFindings::maximum)
                continue;
            const auto setting = std::ranges::find(profileSwitches, wanted, &ProfileSetting<bool>::field);
            const QString line = attribute.isEmpty() ? u"no line of %1 is printed"_s.arg(quoted(element))
                                                     : u"%1 is not printed"_s.arg(quoted(attribute));
            m_found.hidden.push_back({attribute.isEmpty() ? m_document.lineOfElement(element)
                                                          : m_document.lineOfAttribute(element, attribute),
                                      line + u": %1%2 is off"_s.arg(m_keyPrefix, setting->name)});
            if (attribute.isEmpty())
                return;
        }
    }

    const LocatedDocument &m_document;
    const TXConfiguration *const m_configuration;
    DocumentFindings m_found;

    int m_rootLine = 0;
    std::vector<Finding> m_early; // the elements between the root and the method, by name
    const MethodRule *m_method = nullptr;
    QString m_methodName; // or what else reads, as messages have it
    QString m_keyPrefix; // of the settings of the method's profile
    DocumentProfile m_profile;
    bool m_textIsNamed = false;
};

} // namespace

DocumentFindings checkDocument(QIODevice &document, const TXConfiguration *configuration)
{
    LocatedDocument source(document);
    Check check(source, configuration);
    return check.findings(readDocument(source, check));
}
