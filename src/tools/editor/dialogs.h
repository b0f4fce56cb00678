#pragma once

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
};

/* Message boxes above the active window, each waiting for its answer. */
class MessageBoxes : public Dialogs
{
public:
    QMessageBox::StandardButton ask(const QString &question, const QStringList &details,
                                    QMessageBox::StandardButtons buttons) override;
    void tell(const QString &message, const QStringList &details) override;
};
