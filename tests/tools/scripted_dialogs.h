#pragma once

#include "dialogs.h"

#include <QApplication>
#include <QTimer>

#include <utility>

using namespace Qt::StringLiterals;

/* Answers as told and notes what was asked. A question that nobody expects is cancelled. */
class ScriptedDialogs : public Dialogs
{
public:
    QMessageBox::StandardButton ask(const QString &question, const QStringList &details,
                                    QMessageBox::StandardButtons buttons) override
    {
        heard << question << details;
        const auto answer = answers.isEmpty() ? QMessageBox::Cancel : answers.takeFirst();
        if (!buttons.testFlag(answer))
            qFatal("there is no such button");
        return answer;
    }

    void tell(const QString &message, const QStringList &details) override { heard << message << details; }

    QString chooseFile(const QString &begin) override { return choose(u"file"_s, begin); }
    QString chooseFolder(const QString &begin) override { return choose(u"folder"_s, begin); }
    QString chooseConfiguration(const QString &begin) override { return choose(u"configuration"_s, begin); }
    QString chooseNameToSave(const QString &begin) override { return choose(u"name to save"_s, begin); }

    QStringList heard;
    QList<QMessageBox::StandardButton> answers;
    QString chosen; // of whatever is to be chosen next

private:
    QString choose(const QString &what, const QString &begin)
    {
        heard << what + u" from "_s + begin;
        return std::exchange(chosen, QString());
    }
};

/* Does something in the next dialog that opens and waits, once it is there. */
template <typename Dialog, typename Action>
void inNextDialog(Action action)
{
    auto *watch = new QTimer(qApp);
    QObject::connect(watch, &QTimer::timeout, qApp, [watch, action] {
        auto *dialog = qobject_cast<Dialog *>(QApplication::activeModalWidget());
        if (!dialog || !dialog->isVisible())
            return;
        watch->stop();
        watch->deleteLater();
        action(*dialog);
    });
    watch->start(0);
}
