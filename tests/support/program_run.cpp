#include "program_run.h"

#include <QFile>
#include <QProcess>

#include <unistd.h>

ProgramResult runProgram(const QString &program, const QStringList &arguments,
                         const QMap<QString, QString> &environment, const QByteArray &standardInput,
                         const std::function<void()> &beforeStart)
{
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    for (auto variable = environment.begin(); variable != environment.end(); ++variable) {
        if (variable.value().isNull())
            variables.remove(variable.key());
        else
            variables.insert(variable.key(), variable.value());
    }

    QProcess process;
    process.setProcessEnvironment(variables);
    if (beforeStart)
        process.setChildProcessModifier(beforeStart);
    process.start(program, arguments);
    process.write(standardInput);
    process.closeWriteChannel();
    const bool finished = process.waitForFinished(60'000);
    ProgramResult result;
    result.crashed = !finished || process.exitStatus() != QProcess::NormalExit;
    result.exitStatus = process.exitCode();
    result.standardOutput = process.readAllStandardOutput();
    result.standardError = process.readAllStandardError();
    if (!finished)
        process.kill();
    process.waitForFinished();
    return result;
}

std::function<void()> inFolder(const QString &folder)
{
    return [path = QFile::encodeName(folder)] {
        if (chdir(path.constData()) != 0)
            _exit(127);
    };
}
