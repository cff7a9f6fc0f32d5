#pragma once

class AxlObj;
class AxReaderWriter;
class AxSymbolString;

/// Whether an element of a list is none that could be read into `entry`, which is new and has the word of the list's
/// elements for its name: another word stands first, and nothing behind it is a keyword of `entry`. That is reported.
bool axIsForeign(AxlObj const* element, AxReaderWriter& entry);

/// Reports an element that is read whatever word it begins with, and whose word is all but that of its list's elements.
void axReportMisspelt(AxlObj const* element, AxSymbolString word);
