#pragma once

#include <QCoreApplication>
#include <QMessageBox>
#include <QStringList>

/* How the editor speaks with the person in front of it. */
class Dialogs
{
public:
    Dialogs() = default;
    Dialogs(const Dialogs &) = delete;
    Dialogs &operator=(const Dialogs &) = delete;
    virtual ~Dialogs() = default;

    /* Asks a question and returns the button chosen; to close the question is to choose Cancel, which is
     * among the buttons. */
    virtual QMessageBox::StandardButton ask(const QString &question, const QStringList &details,
                                            QMessageBox::StandardButtons buttons) = 0;

    /* Tells what went wrong. */
    virtual void tell(const QString &message, const QStringList &details) = 0;

    /* Have a file or a folder chosen, beginning at one: of the machine, that is there; a configuration to
     * open; the name of one to save. Empty when none is chosen. */
    virtual QString chooseFile(const QString &begin) = 0;
    virtual QString chooseFolder(const QString &begin) = 0;
    virtual QString chooseConfiguration(const QString &begin) = 0;
    virtual QString chooseNameToSave(const QString &begin) = 0;
};

/* Boxes above the active window, each waiting for its answer. */
class MessageBoxes : public Dialogs
{
    Q_DECLARE_TR_FUNCTIONS(MessageBoxes)

public:
    QMessageBox::StandardButton ask(const QString &question, const QStringList &details,
                                    QMessageBox::StandardButtons buttons) override;
    void tell(const QString &message, const QStringList &details) override;
    QString chooseFile(const QString &begin) override;
    QString chooseFolder(const QString &begin) override;
    QString chooseConfiguration(const QString &begin) override;
    QString chooseNameToSave(const QString &begin) override;
};
