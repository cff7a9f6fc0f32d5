#include "AxZedStateRepositoryUserExtension.h"

#include "AxZedStateRepositoryUserExtensionFactory.h"

#include <memory>

namespace
{
AxZedStateRepositoryUserExtensionFactory* ourExtensionFactory = nullptr;
bool ourExtensionFactoryWasSet = false;

AxZedStateRepositoryUserExtension* createBase(AxString const&)
{
    return new (std::nothrow) AxZedStateRepositoryUserExtension(AxSymbolString(), nullptr);
}
} // namespace

AxZedStateRepositoryUserExtension::~AxZedStateRepositoryUserExtension() = default;

AxString const& AxZedStateRepositoryUserExtension::baseType()
{
    static AxString const type("default-zed-state-repository-user-extension");
    return type;
}

AxString AxZedStateRepositoryUserExtension::type() const
{
    return baseType();
}

AxZedStateRepositoryUserExtension* AxZedStateRepositoryUserExtension::clone(AxSymbolString name,
                                                                            AxReaderWriterRegistry* registry) const
{
    auto made = std::make_unique<AxZedStateRepositoryUserExtension>(name, registry);
    made->assign(*this);
    return made.release();
}

std::list<AxString> AxZedStateRepositoryUserExtension::scriptObjectKinds() const
{
    return {"ScriptZedObject", "Location3D", "Vector3D", "ScriptComponentSystem", "LuaPathJob"};
}

void AxZedStateRepositoryUserExtension::writeSelf(std::string& out, int indent, bool all, AxFilename const& file)
{
    AxReaderWriterRegistry const* const members = registryIfAny();
    if (flag(KeepsItems) || (members && members->size() != 0))
    {
        AxReaderWriter::writeSelf(out, indent, all, file);
    }
}

char const* AxZedStateRepositoryUserExtension::readerWriterType() const
{
    return "AxZedStateRepositoryUserExtension";
}

AxZedStateRepositoryUserExtensionFactory* AxZedStateRepositoryUserExtension::factory()
{
    static AxZedStateRepositoryUserExtensionFactory builtIn;
    return ourExtensionFactoryWasSet ? ourExtensionFactory : &builtIn;
}

void AxZedStateRepositoryUserExtension::setFactory(AxZedStateRepositoryUserExtensionFactory* factory)
{
    ourExtensionFactory = factory;
    ourExtensionFactoryWasSet = true;
}

AxZedStateRepositoryUserExtensionFactory::AxZedStateRepositoryUserExtensionFactory()
{
    addCreator(AxZedStateRepositoryUserExtension::baseType(), &createBase);
}

AxZedStateRepositoryUserExtensionFactory::~AxZedStateRepositoryUserExtensionFactory() = default;
