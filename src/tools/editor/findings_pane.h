#pragma once

#include "configuration_check.h"

#include <QDockWidget>

class ConfigurationDocument;
class QListWidget;

/* Lists what there is to find in a configuration. */
class FindingsPane : public QDockWidget
{
    Q_OBJECT

public:
    /* Follows the document, which outlives the pane. */
    explicit FindingsPane(ConfigurationDocument &document);

Q_SIGNALS:
    /* Somebody wants to see what a finding is about. */
    void activated(const Finding &finding);

private:
    void update();

    ConfigurationDocument &m_document;
    QListWidget *m_list; // owned by the pane
};
