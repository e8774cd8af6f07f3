#include "tests/fuzz/DescriptionMutator.h"

#include "tests/support/Elements.h"
#include "tests/support/Words.h"

#include <QDomDocument>

namespace {

constexpr int mostElements = 250;

const QStringList &tags()
{
    static const QStringList names =
        words("toolbar_appbutton toolbar_quickaccessbar toolbar_tabbar toolbar_searchbar "
              "toolbar_addtional tabbutton menu menuitem button buttongroup combobox item label "
              "lineedit extra sperator unknown");
    return names;
}

const QStringList &attributes()
{
    static const QStringList names = words(
        "text icon name action tooltip disabletip shortcut output layout group arrow dropicon "
        "visible usable available doubleclick checkable editable switchable withaction "
        "scalable check checked index");
    return names;
}

const QStringList &values()
{
    static const QStringList texts =
        QStringList{"", " "}
        + words(
            "true false 0 1 2 -1 2147483647 a;b 100% / menu_ annotgroup zmode v_zoom d_gotopage "
            "d_totalpagelabel vzmode_original vzmode_custom vzmode_37p background_nighttime "
            "vpmode_singlepage vmode_flow tp_shape qbar_f_open qt_set st_input st_prev st_next "
            "st_set st_option_nocase st_option_wholeword gis_next t_fold t_extend f_openrecent "
            "f_openrecentfile no_file f_clearhistory ab_set menu_file toolbar_whole mrtoolbar "
            "tabwidget top_widget ../../.. icon16/Set.svg <b>&amp; Ctrl+O");
    return texts;
}

/** The element itself and all below it. */
QList<QDomElement> elementsOf(const QDomElement &root)
{
    return QList<QDomElement>{root} + elementsBelow(root);
}

} // namespace

DescriptionMutator::DescriptionMutator(unsigned int seed)
    : m_random(seed)
{
}

QByteArray DescriptionMutator::mutated(const QByteArray &xml)
{
    constexpr int mostChanges = 4;
    QDomDocument document;
    if (!document.setContent(xml))
        return {};

    for (int changes = 1 + below(mostChanges); changes > 0; --changes)
        change(document);
    return document.toByteArray(0);
}

int DescriptionMutator::below(int bound)
{
    return std::uniform_int_distribution<int>(0, bound - 1)(m_random);
}

QString DescriptionMutator::oneOf(const QStringList &choices)
{
    return choices.at(below(static_cast<int>(choices.size())));
}

QDomElement DescriptionMutator::anyElement(const QDomDocument &document)
{
    const QList<QDomElement> elements = elementsOf(document.documentElement());
    return elements.at(below(static_cast<int>(elements.size())));
}

QString DescriptionMutator::anyValue(const QDomDocument &document)
{
    // Controls meet by their names, so a value that is in the document is worth as much as any.
    const QDomNamedNodeMap known = anyElement(document).attributes();
    if (known.isEmpty() || below(2) == 0)
        return oneOf(values());
    return known.item(below(known.count())).nodeValue();
}

void DescriptionMutator::change(QDomDocument &document)
{
    QDomElement element = anyElement(document);
    switch (below(6)) {
    case 0:
        addElement(document, element);
        break;
    case 1:
        removeElement(document, element);
        break;
    case 2:
        copyElement(element, anyElement(document));
        break;
    default:
        setAttribute(document, element);
    }
}

void DescriptionMutator::setAttribute(QDomDocument &document, QDomElement element)
{
    const QDomNamedNodeMap known = element.attributes();
    if (!known.isEmpty() && below(5) == 0 && element != document.documentElement())
        element.removeAttribute(known.item(below(known.count())).nodeName());
    else
        element.setAttribute(oneOf(attributes()), anyValue(document));
}

void DescriptionMutator::addElement(QDomDocument &document, QDomElement parent)
{
    QDomElement child = document.createElement(oneOf(tags()));
    for (int i = below(4); i > 0; --i)
        child.setAttribute(oneOf(attributes()), anyValue(document));
    parent.appendChild(child);
}

void DescriptionMutator::removeElement(const QDomDocument &document, QDomElement element)
{
    if (element == document.documentElement())
        return;
    // Half of the times what is below it moves up.
    for (QDomNode parent = element.parentNode(); below(2) == 0 && element.hasChildNodes();)
        parent.insertBefore(element.firstChild(), element);
    element.parentNode().removeChild(element);
}

void DescriptionMutator::copyElement(QDomElement element, QDomElement target)
{
    const auto present = elementsOf(element.ownerDocument().documentElement()).size();
    if (elementsOf(element).size() + present < mostElements)
        target.appendChild(element.cloneNode());
}
