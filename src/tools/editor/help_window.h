#pragma once

#include <QTextBrowser>

/* The pages about the programs in a window of their own, that of the configuration first. */
class HelpWindow : public QTextBrowser
{
    Q_OBJECT

public:
    HelpWindow();

    /* Brings into sight what the page of the configuration says about a setting, such as "paperWidth"; its
     * beginning without one. */
    void showSetting(const QString &name);

private:
    bool showPage(const QString &name);
    void showHeading(const QString &anchor);
    void follow(const QUrl &link);
    void showAtTop(const QTextCursor &place);

    QString m_page;
};
