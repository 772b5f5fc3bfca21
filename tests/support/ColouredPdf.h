#pragma once

#include <QByteArray>
#include <QColor>
#include <QList>

namespace pdf {

/// A PDF whose pages are of these colours from edge to edge, page n being 100 n by 50 points. Written by
/// hand, so that it needs no fonts and no application.
inline QByteArray colouredPages(const QList<QColor>& colors) {
    const auto number = [](auto value) { return QByteArray::number(value); };
    QByteArray kids;
    QByteArrayList objects{"<< /Type /Catalog /Pages 2 0 R >>", QByteArray()};
    for (qsizetype i = 0; i < colors.size(); ++i) {
        const QByteArray size = number(100 * (i + 1)) + " 50";
        const QColor& color = colors[i];
        const QByteArray ink = number(color.redF()) + ' ' + number(color.greenF()) + ' ' +
                               number(color.blueF()) + " rg 0 0 " + size + " re f";
        kids += number(objects.size() + 1) + " 0 R ";
        objects << "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 " + size + "] /Contents " +
                       number(objects.size() + 2) + " 0 R >>";
        objects << "<< /Length " + number(ink.size()) + " >>\nstream\n" + ink + "\nendstream";
    }
    objects[1] = "<< /Type /Pages /Count " + number(colors.size()) + " /Kids [ " + kids + "] >>";
    QByteArray file = "%PDF-1.4\n";
    QByteArray table;
    for (qsizetype i = 0; i < objects.size(); ++i) {
        table += number(file.size()).rightJustified(10, '0') + " 00000 n \n";
        file += number(i + 1) + " 0 obj\n" + objects[i] + "\nendobj\n";
    }
    const QByteArray count = number(objects.size() + 1);
    return file + "xref\n0 " + count + "\n0000000000 65535 f \n" + table + "trailer\n<< /Size " + count +
           " /Root 1 0 R >>\nstartxref\n" + number(file.size()) + "\n%%EOF\n";
}

}  // namespace pdf
