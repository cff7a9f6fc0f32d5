#pragma once

#include <string>

class AxlObj;

/// The word that tells the kind of a table element's range determinant: the head of the first item inside its
/// "range-determinant". A nil cell when there is none.
AxlObj const* axDeterminantWord(AxlObj const* element);

/// Reports that `word`, which `axDeterminantWord` found in `element`, is the head of no determinant known in a `table`.
void axReportDeterminant(AxlObj const* element, AxlObj const* word, std::string const& table);
