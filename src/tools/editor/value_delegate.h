#pragma once

#include <QStyledItemDelegate>

class Dialogs;
class SettingsModel;

/*
 * Edits values each in a field of its kind: numbers within their bounds, choices from a list, files with a
 * chooser. A value that its kind does not know is edited as text.
 */
class ValueDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    ValueDelegate(SettingsModel &model, Dialogs &dialogs, QObject *parent = nullptr);

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const override;

Q_SIGNALS:
    /* A text in a field is another: why it cannot be taken, or what is wrong with it; empty for nothing. */
    void typed(const QString &remark) const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void choosePath(QWidget *editor, const QPersistentModelIndex &index);
    QString textOf(const QWidget *editor) const;

    SettingsModel &m_model;
    Dialogs &m_dialogs;
};
