#pragma once

#include <QByteArray>
#include <QString>

class ListChart;
class QPagedPaintDevice;

/// The report on the curves of a form: the picture, a description of every curve, its parameters.
namespace ReportPage {

/// One HTML page that needs no other file.
QByteArray html(const ListChart &form);

/// A PDF document of A4 pages.
QByteArray pdf(const ListChart &form);

/// HTML, or PDF for a \a fileName of that suffix.
QByteArray document(const ListChart &form, const QString &fileName);

/// The charts alone as a PDF document of one page of their size.
QByteArray chartPdf(const ListChart &form);

/// Paints the report onto the pages of \a device, for instance a printer.
void print(const ListChart &form, QPagedPaintDevice &device);

} // namespace ReportPage
