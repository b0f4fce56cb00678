#include "dialogs.h"

#include <QApplication>

using namespace Qt::StringLiterals;

namespace {

QMessageBox::StandardButton show(QMessageBox::Icon icon, const QString &text, const QStringList &details,
                                 QMessageBox::StandardButtons buttons)
{
    constexpr qsizetype mostLines = 10;

    QMessageBox box(icon, QApplication::applicationDisplayName(), text, buttons,
                    QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText); // names and values may look like markup
    if (details.size() <= mostLines) {
        box.setInformativeText(details.join(u'\n'));
    } else {
        box.setInformativeText(details.first(mostLines).join(u'\n')
                               + u"\n… and %1 more."_s.arg(details.size() - mostLines));
        box.setDetailedText(details.join(u'\n'));
    }
    // Return does what loses least.
    box.setDefaultButton(buttons.testFlag(QMessageBox::Discard) ? QMessageBox::Save : QMessageBox::Cancel);
    return static_cast<QMessageBox::StandardButton>(box.exec());
}

} // namespace

QMessageBox::StandardButton MessageBoxes::ask(const QString &question, const QStringList &details,
                                              QMessageBox::StandardButtons buttons)
{
    return show(QMessageBox::Warning, question, details, buttons);
}

void MessageBoxes::tell(const QString &message, const QStringList &details)
{
    show(QMessageBox::Critical, message, details, QMessageBox::Ok);
}
