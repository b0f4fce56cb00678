#include "help_window.h"

#include <QDesktopServices>
#include <QFile>
#include <QRegularExpression>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
#include <QTextBlock>
#include <QTextTable>

using namespace Qt::StringLiterals;

namespace {

const QString reference = u"configuration.md"_s;

// As links in the pages name a heading.
QString anchorOf(const QString &heading)
{
    static const QRegularExpression sign(u"[^\\w -]"_s);
    return heading.toLower().remove(sign).replace(u' ', u'-');
}

} // namespace

HelpWindow::HelpWindow()
{
    setWindowTitle(tr("The Configuration"));
    setObjectName(u"help"_s);
    resize(QSize(760, 640).boundedTo(screen()->availableSize()));
    auto *close = new QShortcut(Qt::Key_Escape, this);
    connect(close, &QShortcut::activated, this, &QWidget::close);
    setOpenLinks(false);
    connect(this, &QTextBrowser::anchorClicked, this, &HelpWindow::follow);
    showPage(reference);
}

bool HelpWindow::showPage(const QString &name)
{
    if (name == m_page)
        return true;
    QFile page(":/help/"_L1 + name);
    if (!page.open(QIODevice::ReadOnly))
        return false;
    static const QRegularExpression picture(u"!\\[[^\\]]*\\]\\([^)]*\\)"_s); // which are files of their own
    setMarkdown(QString::fromUtf8(page.readAll()).remove(picture));
    m_page = name;
    return true;
}

// The first column of a table names the setting that the row is about.
void HelpWindow::showSetting(const QString &name)
{
    showPage(reference);
    moveCursor(QTextCursor::Start);
    if (name.isEmpty())
        return;
    const auto flags = QTextDocument::FindWholeWords | QTextDocument::FindCaseSensitively;
    for (QTextCursor found = document()->find(name, 0, flags); !found.isNull();
         found = document()->find(name, found, flags)) {
        const QTextTable *const table = found.currentTable();
        if (!table || table->cellAt(found).column() != 0)
            continue;
        showAtTop(found);
        return;
    }
}

// Links lead to headings, to other pages, or into the net.
void HelpWindow::follow(const QUrl &link)
{
    if (!link.isRelative()) {
        QDesktopServices::openUrl(link);
    } else if (link.path().isEmpty() || showPage(link.path())) {
        moveCursor(QTextCursor::Start);
        showHeading(link.fragment());
    }
}

void HelpWindow::showHeading(const QString &anchor)
{
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next())
        if (block.blockFormat().headingLevel() > 0 && anchorOf(block.text()) == anchor) {
            showAtTop(QTextCursor(block));
            return;
        }
}

void HelpWindow::showAtTop(const QTextCursor &place)
{
    moveCursor(QTextCursor::End); // since only what is not seen is scrolled to
    setTextCursor(place);
    horizontalScrollBar()->setValue(0);
    verticalScrollBar()->setValue(verticalScrollBar()->value() + cursorRect().top());
}
