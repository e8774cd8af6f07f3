#pragma once

#include "toolbar/handwrite/MRHandWriteDialog.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QPushButton>

#include <memory>
#include <vector>

inline QPushButton *numbered(const QDialog &dialog, const char *name, int index)
{
    return dialog.findChild<QPushButton *>(QLatin1String(name) + QString::number(index + 1));
}

inline QPushButton *colourButton(const QDialog &dialog, int index)
{
    return numbered(dialog, "pushButtonColor", index);
}

inline QPushButton *trackButton(const QDialog &dialog, int index)
{
    return numbered(dialog, "pushButtonTrack", index);
}

/** The places of the checked buttons of a group, counted from 0 in the order of the form. */
inline QList<int> checkedIn(const QDialog &dialog, const char *groupName)
{
    QList<int> places;
    const auto *group = dialog.findChild<QButtonGroup *>(QLatin1String(groupName));
    const QList<QAbstractButton *> buttons = group->buttons();
    for (int i = 0; i < buttons.size(); ++i) {
        if (buttons.at(i)->isChecked())
            places.append(i);
    }
    return places;
}

inline QList<int> only(int place)
{
    return place < 0 ? QList<int>() : QList<int>{place};
}

/** Track records as a host would own them. */
class Tracks
{
public:
    explicit Tracks(int count, int selected = -1)
    {
        for (int i = 0; i < count; ++i) {
            m_records.push_back(std::make_unique<Track>());
            *m_records.back() = {i, Qt::blue, 3, 10, 0, i == selected, QString()};
            list.append(m_records.back().get());
        }
    }
    Track &operator[](int index) { return *m_records.at(size_t(index)); }

    QList<Track *> list;

private:
    std::vector<std::unique_ptr<Track>> m_records;
};
