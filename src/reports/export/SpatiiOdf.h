#pragma once

#include <QString>

// The XML namespaces of the OpenDocument spreadsheet parts that the writers and the template filler use.
namespace Raport::Odf {

inline const QString NsOffice = QStringLiteral("urn:oasis:names:tc:opendocument:xmlns:office:1.0");
inline const QString NsStyle = QStringLiteral("urn:oasis:names:tc:opendocument:xmlns:style:1.0");
inline const QString NsText = QStringLiteral("urn:oasis:names:tc:opendocument:xmlns:text:1.0");
inline const QString NsTable = QStringLiteral("urn:oasis:names:tc:opendocument:xmlns:table:1.0");
inline const QString NsFo = QStringLiteral("urn:oasis:names:tc:opendocument:xmlns:xsl-fo-compatible:1.0");
inline const QString NsNumber = QStringLiteral("urn:oasis:names:tc:opendocument:xmlns:datastyle:1.0");
inline const QString NsCalcExt = QStringLiteral("urn:org:documentfoundation:names:experimental:calc:xmlns:calcext:1.0");

} // namespace Raport::Odf
