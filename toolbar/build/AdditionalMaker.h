// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

class ControlFactory;
class QPushButton;
struct Controller;

/** Makes the buttons at the right end of the top line. */
class AdditionalMaker
{
public:
    explicit AdditionalMaker(const ControlFactory &factory);

    QPushButton *makeButton(const Controller &record) const;

    /**
     * The partner of the fold button: hidden, with its icon turned over. A tooltip with ";" is
     * shared out between the two, the first part to the fold button.
     */
    QPushButton *makeUnfoldButton(QPushButton *foldButton, const Controller &record) const;

private:
    const ControlFactory &m_factory;
};
