#pragma once

#include <exception>
#include <memory>
#include <type_traits>

#include "AxDiagnostic.h"
#include "AxReaderWriter.h"

/// The item that starts the text of a descriptor and tells its class: `(head "type")`.
namespace AxTypeItem
{
/// Appends the item on a line of its own, one level below `indent`.
void write(std::string& out, int indent, char const* head, AxString const& type);
/// Reports an item that stands in the place of the type item and is not headed `head`, since its value is lost.
void check(AxlObj const* item, char const* head);
/// The cell that names the type in `(name (head type) ...)`; nil for any other shape.
AxlObj const* typeCell(AxlObjPtr const& expression);
/// Where a fault of the type is reported: its cell, or the expression when that has no place.
AxlObj const* placeOf(AxlObj const* typeCell, AxlObjPtr const& expression);
/// That the creator of `type` threw; `cell` may be null.
AxDiagnostic creationFailed(AxlObj const* cell, std::string_view type, std::string_view reason);
void reportCreationFailed(AxlObj const* cell, std::string_view type, std::string_view reason);
/// The object that `make` answers, after `use` was done with it. Null when `make` answers null, and, after a report at
/// `cell`, when one of them throws.
template <class Make, class Use>
auto made(AxlObj const* cell, AxString const& type, Make const& make, Use const& use) -> decltype(make())
{
    try
    {
        std::unique_ptr<std::remove_pointer_t<decltype(make())>> object(make());
        if (object)
        {
            use(*object);
        }
        return object.release();
    }
    catch (...)
    {
        reportCreationFailed(cell, type.string(), axReason());
        return nullptr;
    }
}

/// Names the cell whose text a creator is being looked up for, so that a factory, which is asked by text alone, can
/// tell the place.
class Scope
{
public:
    explicit Scope(AxlObj const* cell);
    Scope(Scope const&) = delete;
    Scope& operator=(Scope const&) = delete;
    ~Scope();

    /// Null outside of all scopes.
    static AxlObj const* cell();

private:
    AxlObj const* myOuter;
};
} // namespace AxTypeItem
