// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QPointer>
#include <QStringList>

class QActionGroup;
class QComboBox;
class QEvent;

/** Checks the button of the zoom that the host has reported, if it reported a percentage. */
void checkZoomButton(const QActionGroup *buttons, const QString &mode);

/**
 * The list of zooms of a tool row: the predefined ones and, behind them, at most one that was
 * typed or reported. It shows the last zoom, whatever else is typed.
 */
class ZoomBox : public QObject
{
    Q_OBJECT

public:
    /** The list; null before there is one and after it has gone. */
    const QPointer<QComboBox> &box() const;
    /** Whether the object is the list, even if that is being destroyed and no list any more. */
    bool isBox(const QObject *object) const { return object == m_identity; }

    /**
     * Makes @p box the list from now on; its entries stand for @p modes. What an entry may be used
     * for follows from its text as described, @p texts, in every language.
     */
    void take(QComboBox *box, const QStringList &modes, const QStringList &texts);

    /** Gives the list its hint in the language of now. */
    void retranslate();

    /** Shows a zoom that the host reports. A predefined one that was not on show is reported back.
     */
    void showMode(const QString &mode);

    /** Whether a zoom is being reported back that the host has reported itself. */
    bool isReportingBack() const { return m_isReportingBack; }

    /** The user has chosen or typed @p text. */
    void choose(const QString &text);

    /** An event of the list, which is not handled yet. */
    void watch(const QEvent &event);

Q_SIGNALS:
    /** The user has chosen a zoom, or the host one that was not on show. */
    void chosen(QString mode);
    /** The mode that the host has reported is on show. */
    void shown(QString mode);

private:
    bool isPercentage(int index, const QString &text) const;
    static void setTypable(QComboBox *box, bool isTypable);
    void showEntry(int index);
    void showCustom(const QString &text);
    void chooseEntry(int index, const QString &text);
    void applyTyped(const QString &text);
    void keepCustom(const QString &entry);
    void dropTyped();
    void showLast();
    void showHint();

    QPointer<QComboBox> m_box;
    const QObject *m_identity = nullptr;
    QStringList m_modes; ///< Names of the predefined entries, in the order of the list.
    QStringList m_texts; ///< Of these, as described.
    int m_index = 0;     ///< Of the entry on show; beyond the predefined ones for any other zoom.
    QString m_customText;
    bool m_isReportingBack = false;
};
