#pragma once

#include <QByteArray>
#include <QDialog>

class QComboBox;
class QLineEdit;
class QPushButton;

/* Asks what a configuration to start from is for: the paper, a receipt printer, the language of the labels.
 */
class StarterDialog : public QDialog
{
    Q_OBJECT

public:
    /* Names the file that is not there, if it is for one. */
    explicit StarterDialog(const QString &missingFile, QWidget *parent);

    /* The configuration that was asked for, as "cfg" text. */
    QByteArray configuration() const;

private:
    void followModel();
    void updateButtons();

    // Owned by the dialog.
    QComboBox *m_model;
    QLineEdit *m_output;
    QComboBox *m_width;
    QComboBox *m_language;
    QPushButton *m_create;
};
