#pragma once

#include <QByteArray>
#include <QDomElement>

#include <random>

/** Changes descriptions so that they stay well-formed: by elements and attributes, not by bytes. */
class DescriptionMutator
{
public:
    explicit DescriptionMutator(unsigned int seed);

    /** A few changes later; empty if @p xml is not well-formed. */
    QByteArray mutated(const QByteArray &xml);

private:
    int below(int bound);
    QString oneOf(const QStringList &choices);
    QDomElement anyElement(const QDomDocument &document);
    QString anyValue(const QDomDocument &document);
    void change(QDomDocument &document);
    void setAttribute(QDomDocument &document, QDomElement element);
    void addElement(QDomDocument &document, QDomElement parent);
    void removeElement(const QDomDocument &document, QDomElement element);
    void copyElement(QDomElement element, QDomElement target);

    std::mt19937 m_random;
};
