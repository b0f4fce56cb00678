#include "dialogs.h"

#include <QApplication>
#include <QFileDialog>
#include <QPushButton>

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
        box.setInformativeText(details.first(mostLines).join(u'\n') + u'\n'
                               + MessageBoxes::tr("… and %1 more.").arg(details.size() - mostLines));
        box.setDetailedText(details.join(u'\n'));
    }
    // Return does what loses least.
    // The toolkit's own words for its buttons are in a catalogue that need not be installed.
    if (QAbstractButton *save = box.button(QMessageBox::Save))
        save->setText(MessageBoxes::tr("&Save"));
    if (QAbstractButton *discard = box.button(QMessageBox::Discard))
        discard->setText(MessageBoxes::tr("&Do Not Save"));
    if (QAbstractButton *cancel = box.button(QMessageBox::Cancel))
        cancel->setText(MessageBoxes::tr("Cancel"));
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

QString MessageBoxes::chooseFile(const QString &begin)
{
    return QFileDialog::getOpenFileName(QApplication::activeWindow(), tr("Choose a File"), begin);
}

QString MessageBoxes::chooseFolder(const QString &begin)
{
    return QFileDialog::getExistingDirectory(QApplication::activeWindow(), tr("Choose a Folder"), begin);
}

QString MessageBoxes::chooseConfiguration(const QString &begin)
{
    return QFileDialog::getOpenFileName(QApplication::activeWindow(), tr("Open a Configuration"), begin,
                                        tr("Configurations (*.conf *.xml);;All files (*)"));
}

QString MessageBoxes::chooseNameToSave(const QString &begin)
{
    return QFileDialog::getSaveFileName(QApplication::activeWindow(), tr("Save the Configuration"), begin,
                                        tr("Configurations (*.conf *.xml);;All files (*)"));
}
