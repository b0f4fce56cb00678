#include "findings_pane.h"

#include "configuration_document.h"

#include <QAction>
#include <QListWidget>
#include <QStyle>

using namespace Qt::StringLiterals;

FindingsPane::FindingsPane(ConfigurationDocument &document)
    : m_document(document)
    , m_list(new QListWidget)
{
    setObjectName(u"findings"_s);
    setFeatures(DockWidgetClosable | DockWidgetMovable);
    m_list->setAccessibleName(tr("Findings"));
    m_list->setWordWrap(true);
    m_list->setLayoutMode(QListWidget::Batched); // thousands take a while
    m_list->setTextElideMode(Qt::ElideNone);
    m_list->setVerticalScrollMode(QListWidget::ScrollPerPixel);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setWidget(m_list);
    const auto show = [this](const QListWidgetItem *item) {
        const auto row = static_cast<std::size_t>(m_list->row(item));
        if (const std::vector<Finding> &findings = m_document.findings(); row < findings.size())
            Q_EMIT activated(Finding(findings[row]));
    };
    connect(m_list, &QListWidget::itemActivated, this, show);
    connect(m_list, &QListWidget::itemClicked, this, show);
    connect(&document, &ConfigurationDocument::findingsChanged, this, &FindingsPane::update);
    update();
}

void FindingsPane::update()
{
    const std::vector<Finding> &findings = m_document.findings();
    m_list->clear();
    for (const Finding &finding : findings)
        m_list->addItem(new QListWidgetItem(
            style()->standardIcon(QStyle::SP_MessageBoxWarning),
            finding.line == 0 ? finding.text : tr("Line %1: %2").arg(finding.line).arg(finding.text)));
    setWindowTitle(findings.empty() ? tr("Nothing found wrong") : tr("Found wrong: %1").arg(findings.size()));
    toggleViewAction()->setText(tr("&Findings")); // which a title changes
}
