#include "configuration_file.h"

#include "configuration_scan.h"
#include "losses.h"
#include "read_file.h"
#include "save_preview.h"

#include <QTreeWidget>

using namespace Qt::StringLiterals;
using libconfig::Config;
using libconfig::Section;

ConfigurationFile::ConfigurationFile(const QString &path, const QString &type)
    : m_path(path)
    , m_type(type)
    , m_store(std::make_unique<Config>())
{
}

QString ConfigurationFile::path() const
{
    return m_path;
}

QString ConfigurationFile::type() const
{
    return m_type;
}

QString ConfigurationFile::read()
{
    const FileContent file = readRegularFile(m_path);
    if (!file.fault.isEmpty())
        return file.fault + u'.';
    const Scan scan = scanConfiguration(file.bytes, m_type);
    if (!scan.fault.isEmpty())
        return u"Line %1: %2."_s.arg(QString::number(scan.faultLine), scan.fault);
    if (!scan.beginsWithRoot)
        return u"It must begin with its root element: after a declaration or a comment nothing is found."_s;
    auto fresh = std::make_unique<Config>(m_path, m_type);
    const Section content = fresh->content();
    if (content.isEmpty())
        return u"It holds no setting."_s;
    m_store = std::move(fresh);
    m_bytes = file.bytes;
    m_holdsUnshownText = saysMore(file.bytes, m_type, content);
    return {};
}

std::unique_ptr<QTreeWidget> ConfigurationFile::view() const
{
    return std::unique_ptr<QTreeWidget>(m_store->buildConfigListView());
}

bool ConfigurationFile::changedOnDisk() const
{
    const FileContent file = readRegularFile(m_path);
    return !file.fault.isEmpty() || file.bytes != m_bytes;
}

QStringList ConfigurationFile::changesByWriting(const QTreeWidget &view) const
{
    QStringList changes = changesBySaving(view, m_type);
    if (m_holdsUnshownText)
        changes << u"Text of the file that is not shown is lost: only sections and settings are saved."_s;
    return changes;
}

WriteResult ConfigurationFile::write(const QTreeWidget &view)
{
    WriteResult result = m_store->loadListView(&view);
    if (result)
        m_bytes = m_type == "xml"_L1 ? m_store->xmlText() : m_store->cfgText();
    return result;
}
