// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "toolbar/find/FindLook.h"
#include "toolbar/find/FoundModel.h"

#include <QPointer>
#include <QWidget>

class FoundLineDelegate;
class QLabel;
class QLineEdit;
class QListView;
class QVBoxLayout;

/**
 * The field with the list of commands below it, above the contents of its window. It is no window
 * of its own: an input method would not reach a field there.
 */
class FindPopup : public QWidget
{
    Q_OBJECT

public:
    /** What is to be done with the command that was chosen. */
    enum class Wish
    {
        Run,
        Show
    };

    /** @param window owns it */
    FindPopup(QWidget *window, FoundModel::LineOf lineOf);

    void setLook(const FindLook &look);
    /** @param opener the button that has opened it; without one it is centred below @p topLine */
    void setAnchor(QWidget *topLine, QWidget *opener);
    /** Texts of its own, in the language of the moment. */
    void retranslate();

    void setFound(std::vector<std::size_t> commands, bool keepsLine);
    /** The same commands as before, of which some may have other states. */
    void refresh();
    QString typed() const;
    void clear();

    /** Appears, if need be, with all that is typed selected. */
    void enter();
    /** Disappears; the focus returns to where it was, unless the user has put it elsewhere. */
    void leave();

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void typedChanged();
    void chosen(std::size_t command, FindPopup::Wish wish);
    /** The user has turned to something else. */
    void dismissed();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void makeField();
    void makeList();
    bool handleKey(int key, Qt::KeyboardModifiers modifiers);
    bool isHandled(int key, Qt::KeyboardModifiers modifiers) const;
    void moveCurrent(int key);
    void choose(const QModelIndex &index, Wish wish);
    void followFocus(QWidget *former, QWidget *now);
    bool isOwn(const QObject *object) const;
    void place();
    int shadow() const;

    FoundModel *m_model;
    FoundLineDelegate *m_delegate;
    QVBoxLayout *m_layout;
    QLineEdit *m_field;
    QListView *m_list;
    QLabel *m_hint;
    QPointer<QWidget> m_topLine;
    QPointer<QWidget> m_opener;
    QPointer<QWidget> m_formerFocus;
    QPoint m_pointer; ///< Where it was when the list last moved by itself.
    FindLook m_look;
};
