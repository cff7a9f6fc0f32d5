#include "AxDiagnostic.h"
#include "AxEnvXMLReader.h"
#include "AxEnvXMLWriter.h"
#include "AxReaderWriter.h"
#include "AxRwBoolean.h"
#include "AxRwInt.h"
#include "AxRwList.h"
#include "AxRwObjectType.h"
#include "AxRwReal.h"
#include "AxTreeCells.h"
#include "AxTreeForm.h"

#include <algorithm>
#include <boost/make_shared.hpp>
#include <charconv>
#include <cstdint>

namespace
{
AxString const* attributeOf(AxString const& name, AxEnvValuePtr const& node)
{
    return node && node->isObject() ? static_cast<AxEnvObject const&>(*node).attribute(name) : nullptr;
}

/// The attribute read as members of the kind are; `none` when that is not possible.
template <class Member, class Value>
Value numberIn(AxString const& name, AxEnvValuePtr const& node, Value none)
{
    AxString const* const text = attributeOf(name, node);
    AxlObjPtr const items = text ? AxTreeCells::cellIn(*text) : AxlObjPtr();
    AxlObj const* item = items.get();
    return Member::readValue(item, none), none;
}

bool isListed(std::vector<AxString> const& types, AxString const& type)
{
    return types.empty() || std::find(types.begin(), types.end(), type) != types.end();
}

/// `isWanted` tells by the tag which child objects become elements.
template <class IsWanted>
void populate(AxRwList& list, AxRwList::Creator const& creator, AxEnvironmentPtr const& env, AxEnvValuePtr const& node,
              AxFilenameList const& files, AxBindingsList const& bindings, IsWanted const& isWanted)
{
    AxEnvListPtr const parent = node ? node->castToList() : AxEnvListPtr();
    if (!parent || !creator)
    {
        return;
    }
    for (AxEnvValuePtr const& child : parent->children())
    {
        AxEnvObjectPtr const object = child->castToObject();
        if (!object || object->isReserved() || !isWanted(object->type()))
        {
            continue;
        }
        if (AxReaderWriter* const made = creator(object->name()))
        {
            made->getSelf(env, child, files, bindings);
            list.add(made);
        }
    }
}

AxEnvironmentPtr treeOf(AxReaderWriter const& rw)
{
    auto env = boost::make_shared<AxEnvironment>();
    rw.putSelf(env, AxEnvValuePtr());
    return env;
}

bool readTree(AxReaderWriter& rw, AxEnvironmentPtr const& env)
{
    if (!env || !env->root())
    {
        rw.setInvalid(true);
        return false;
    }
    rw.getSelf(env, env->root(), AxReaderWriter::nullFilenames(), AxReaderWriter::nullVariableReference());
    return !rw.invalid();
}
} // namespace

void AxReaderWriter::putSelf(AxEnvironmentPtr const& env, AxEnvValuePtr const& parent) const
{
    if (env)
    {
        AxTreeForm::guarded("write-failed", nullptr, [&] { AxTreeForm::write(*this, env, parent); });
    }
}

void AxReaderWriter::putData(AxEnvironmentPtr const& env, AxEnvValuePtr const& node) const
{
    if (env && node)
    {
        AxTreeForm::guarded("write-failed", nullptr, [&] { AxTreeForm::writeData(*this, env, node); });
    }
}

void AxReaderWriter::putVariableReference(AxEnvironmentPtr const& env, AxEnvValuePtr const& node) const
{
    if (env && node)
    {
        AxTreeForm::guarded("write-failed", nullptr, [&] { AxTreeForm::writeReference(*this, env, node); });
    }
}

void AxReaderWriter::getSelf(AxEnvironmentPtr const& env, AxEnvValuePtr const& node, AxFilenameList const& files,
                             AxBindingsList const& bindings)
{
    if (!node ||
        !AxTreeForm::guarded("read-failed", node.get(), [&] { AxTreeForm::read(*this, env, node, files, bindings); }))
    {
        setFlag(Invalid, true);
    }
}

void AxReaderWriter::getData(AxEnvironmentPtr const& env, AxEnvValuePtr const& node, AxFilenameList const& files,
                             AxBindingsList const& bindings)
{
    if (flag(Value))
    {
        AxReaderWriter::getSelf(env, node, files, bindings);
    }
}

bool AxReaderWriter::getVariableReference(AxEnvironmentPtr const&, AxEnvValuePtr const& node)
{
    bool isReference = false;
    AxTreeForm::guarded("read-failed", node.get(),
                        [&] { isReference = node && AxTreeForm::readReference(*this, node); });
    return isReference;
}

bool AxReaderWriter::toXml(AxFilename const& file) const
{
    bool isWritten = false;
    AxTreeForm::guarded("write-failed", nullptr,
                        [&]
                        {
                            AxEnvironmentPtr const tree = treeOf(*this);
                            // What has no root could not be made, and was told of then.
                            isWritten = tree->root() && AxEnvXMLWriter().writeFile(tree, file);
                        });
    return isWritten;
}

AxString AxReaderWriter::toXml() const
{
    std::string text;
    AxTreeForm::guarded("write-failed", nullptr,
                        [&]
                        {
                            AxEnvironmentPtr const tree = treeOf(*this);
                            if (tree->root())
                            {
                                AxEnvXMLWriter().writeText(tree, text);
                            }
                        });
    return AxString(std::move(text));
}

bool AxReaderWriter::fromXml(AxString const& text)
{
    bool isRead = false;
    AxTreeForm::guarded("read-failed", nullptr,
                        [&] { isRead = readTree(*this, AxEnvXMLReader::readText(text.string(), AxFilename())); });
    return isRead;
}

bool AxReaderWriter::fromXmlFile(AxFilename const& file)
{
    bool isRead = false;
    AxTreeForm::guarded("read-failed", nullptr,
                        [&]
                        {
                            AxSourceScope const source(file);
                            isRead = readTree(*this, AxEnvXMLReader::readFile(file));
                        });
    return isRead;
}

AxString AxReaderWriter::getAttribute(AxEnvironmentPtr const&, AxString const& name, AxEnvValuePtr const& node)
{
    AxString const* const text = attributeOf(name, node);
    return text ? *text : AxString();
}

void AxRwList::getSelf(AxEnvironmentPtr const& env, AxEnvValuePtr const& node, AxFilenameList const& files,
                       AxBindingsList const& bindings)
{
    AxReaderWriter::getSelf(env, node, files, bindings);
}

void AxRwList::getData(AxEnvironmentPtr const& env, AxEnvValuePtr const& node, AxFilenameList const& files,
                       AxBindingsList const& bindings)
{
    AxReaderWriter::getSelf(env, node, files, bindings);
}

void AxRwList::putData(AxEnvironmentPtr const& env, AxEnvValuePtr const& node) const
{
    if (env && node)
    {
        AxTreeForm::guarded("write-failed", nullptr, [&] { AxTreeForm::writeElements(*this, env, node); });
    }
}

void AxRwList::populateList(Creator const& creator, AxEnvironmentPtr const& env, AxEnvValuePtr const& node,
                            AxFilenameList const& files, AxBindingsList const& bindings)
{
    std::vector<AxString> const types = supportedXmlTypes();
    populate(*this, creator, env, node, files, bindings,
             [&types](AxString const& type) { return isListed(types, type); });
}

void AxRwList::populateListByType(Creator const& creator, AxEnvironmentPtr const& env, AxEnvValuePtr const& node,
                                  AxString const& type, AxFilenameList const& files, AxBindingsList const& bindings)
{
    populate(*this, creator, env, node, files, bindings, [&type](AxString const& tag) { return tag == type; });
}

double AxRwReal::getDouble(AxEnvironmentPtr const&, AxString const& name, AxEnvValuePtr const& node)
{
    return numberIn<AxRwReal>(name, node, 0.0);
}

int AxRwInt::getInt(AxEnvironmentPtr const&, AxString const& name, AxEnvValuePtr const& node)
{
    return numberIn<AxRwInt>(name, node, 0);
}

int AxRwInt::getIntegerFromHex(AxEnvironmentPtr const&, AxString const& name, AxEnvValuePtr const& node)
{
    AxString const* const text = attributeOf(name, node);
    std::string_view digits = text ? std::string_view(text->string()) : std::string_view();
    if (digits.starts_with("0x") || digits.starts_with("0X"))
    {
        digits.remove_prefix(2);
    }
    std::uint32_t value = 0;
    auto const [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value, 16);
    return error == std::errc() && end == digits.data() + digits.size() ? static_cast<int>(value) : 0;
}

bool AxRwBoolean::getBoolAttribute(AxEnvironmentPtr const&, AxString const& name, AxEnvValuePtr const& node)
{
    AxString const* const text = attributeOf(name, node);
    return text && ToBool(*text);
}

AxObjectType AxRwObjectType::getObjectType(AxEnvironmentPtr const&, AxEnvValuePtr const& node)
{
    AxObjectType type;
    AxString const* const text = attributeOf("value", node);
    return text && AxObjectType::fromString(text->string(), type) ? type : AxObjectType::nullType();
}
