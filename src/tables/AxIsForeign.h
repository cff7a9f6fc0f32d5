#pragma once

class AxlObj;
class AxReaderWriter;

/// Whether an element of a list is none that could be read into `entry`, which is new and has the word of the list's
/// elements for its name: another word stands first, and nothing behind it is a keyword of `entry`. That is reported.
bool axIsForeign(AxlObj const* element, AxReaderWriter& entry);
