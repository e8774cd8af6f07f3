// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

class QLabel;
class QListWidget;
class QListWidgetItem;
class QPushButton;

/** What is shown in place of the pages while no document is open. */
class StartPage : public QWidget
{
    Q_OBJECT

public:
    explicit StartPage(QWidget *parent = nullptr);

    void setFiles(const QStringList &fileNames);

Q_SIGNALS:
    void openAsked();
    void fileChosen(const QString &fileName);
    void removeAsked(const QString &fileName);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void buildContent();
    void showTexts();
    void setSizes();
    void setColours();
    void choose(const QListWidgetItem *item);
    void removeCurrent();

    QWidget *m_column;
    QLabel *m_title;
    QLabel *m_hint;
    QPushButton *m_openButton;
    QLabel *m_caption;
    QListWidget *m_list;
    QPushButton *m_removeButton;
};
