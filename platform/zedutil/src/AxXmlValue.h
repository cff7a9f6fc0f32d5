#pragma once

#include "AxReaderWriterFactory.h"

#include <string_view>

/// Values of members as they usually stand in XML. What is false here may still be a value in some unusual form, which
/// is for the way by cells to tell.
namespace AxXmlValue
{
/// A word that is a string in every reading.
bool isPlainWord(std::string_view text);
/// The value of a member that is an attribute. `isGuided`: the attribute is known to be that member's, so that blanks
/// around a number do not count and a text is none.
bool readAttribute(AxReaderWriter& member, AxTypeInfo::Reading reading, std::string_view text, bool isGuided);
/// That of a vector or object type, in an element's attribute "value".
bool readElement(AxReaderWriter& member, AxTypeInfo::Reading reading, std::string_view text);
} // namespace AxXmlValue
