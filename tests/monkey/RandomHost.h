#pragma once

#include "tests/monkey/RandomSource.h"

#include <QStringList>

class MRToolBar;
class QMainWindow;
class Witness;

/** A host that says anything at any time. */
class RandomHost
{
public:
    RandomHost(RandomSource &random, QStringList names, Witness &witness);

    /** One call of the facade; the name of it. */
    QString step(MRToolBar &facade, QMainWindow &window);

    /** What a decent host does when it is asked for the states of its controls. */
    void enableEverything(MRToolBar &facade) const;

private:
    QString anyName();
    QString setState(MRToolBar &facade);
    QString setPages(MRToolBar &facade);
    QString setZoom(MRToolBar &facade);
    QString setRecentFiles(MRToolBar &facade);
    QString setSkin(MRToolBar &facade);
    QString ask(MRToolBar &facade);
    QString resize(QMainWindow &window);

    RandomSource &m_random;
    QStringList m_names;
    Witness &m_witness;
};
