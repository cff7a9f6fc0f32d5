#include "Schema.h"

#include <map>
#include <memory>

#include "AxReaderWriterFile.h"
#include "AxRwList.h"
#include "AxZedObjectParameters.h"
#include "Catalogue.h"
#include "Factories.h"
#include "Findings.h"

namespace
{
constexpr char const* theHead = R"(<?xml version="1.0" encoding="UTF-8"?>
<!-- Entity files. Any root holds objects; what an object or a record holds besides is kept by who reads it, and may stand. -->
<xs:schema xmlns:xs="http://www.w3.org/2001/XMLSchema">
  <xs:simpleType name="reference">
    <xs:restriction base="xs:string"><xs:pattern value=".*[$].*"/></xs:restriction>
  </xs:simpleType>
  <xs:simpleType name="integerOrReference"><xs:union memberTypes="xs:integer reference"/></xs:simpleType>
  <xs:simpleType name="realOrReference"><xs:union memberTypes="xs:double reference"/></xs:simpleType>
  <xs:simpleType name="booleanOrReference">
    <xs:union memberTypes="reference">
      <xs:simpleType><xs:restriction base="xs:string"><xs:enumeration value="true"/><xs:enumeration value="false"/></xs:restriction></xs:simpleType>
    </xs:union>
  </xs:simpleType>
  <xs:simpleType name="objectTypeText">
    <xs:restriction base="xs:string"><xs:pattern value="(-?\d+(:-?\d+){6,7})?|.*[$].*"/></xs:restriction>
  </xs:simpleType>
  <xs:simpleType name="numbersText">
    <xs:restriction base="xs:string"><xs:pattern value="\s*([^\s]+(\s+[^\s]+)*)?\s*"/></xs:restriction>
  </xs:simpleType>
  <xs:complexType name="anything" mixed="true">
    <xs:sequence><xs:any minOccurs="0" maxOccurs="unbounded" processContents="lax"/></xs:sequence>
    <xs:anyAttribute processContents="lax"/>
  </xs:complexType>
  <xs:complexType name="typeElement"><xs:attribute name="name" type="xs:string"/><xs:attribute name="value" type="objectTypeText"/><xs:attribute name="variable" type="reference"/></xs:complexType>
  <xs:complexType name="numbersElement"><xs:attribute name="name" type="xs:string"/><xs:attribute name="value" type="numbersText"/><xs:attribute name="variable" type="reference"/></xs:complexType>
  <xs:element name="simObject" type="anything"/>
  <xs:element name="entities" type="anything"/>
  <xs:element name="guiInformation" type="anything"/>
  <xs:element name="list" type="anything"/>
  <xs:element name="objectType" type="typeElement"/>
  <xs:element name="matchType" type="typeElement"/>
  <xs:element name="entityType" type="typeElement"/>
  <xs:element name="vector" type="numbersElement"/>
  <xs:element name="offsetVector" type="numbersElement"/>
  <xs:element name="taitBryan" type="numbersElement"/>
  <xs:element name="objectTypes">
    <xs:complexType>
      <xs:sequence><xs:element ref="objectType" minOccurs="0" maxOccurs="unbounded"/></xs:sequence>
      <xs:attribute name="name" type="xs:string"/><xs:attribute name="variable" type="reference"/>
    </xs:complexType>
  </xs:element>
  <xs:element name="variableBindings">
    <xs:complexType>
      <xs:sequence><xs:any minOccurs="0" maxOccurs="unbounded" processContents="lax"/></xs:sequence>
      <xs:attribute name="name" type="xs:string"/>
    </xs:complexType>
  </xs:element>
  <xs:element name="variable">
    <xs:complexType>
      <xs:attribute name="name" type="xs:string" use="required"/><xs:attribute name="value" type="xs:string"/><xs:attribute name="type" type="xs:string"/>
    </xs:complexType>
  </xs:element>
  <xs:element name="componentSystem" type="anything"/>
  <xs:element name="systemName">
    <xs:complexType><xs:attribute name="name" type="xs:string"/><xs:attribute name="value" type="xs:string" use="required"/></xs:complexType>
  </xs:element>
)";

char const* typeOf(ValueShape shape)
{
    switch (shape)
    {
    case ValueShape::Boolean:
        return "booleanOrReference";
    case ValueShape::Integer:
        return "integerOrReference";
    case ValueShape::Real:
        return "realOrReference";
    default:
        return "xs:string";
    }
}

/// XML type by attribute; a keyword that is not the same in all types is text.
using Attributes = std::map<std::string, std::string>;

void addAttributes(Attributes& attributes, AxReaderWriter& sample)
{
    AxReaderWriterRegistry const* const registry = sample.registryIfAny();
    for (std::size_t i = 0; registry != nullptr && i < registry->size(); ++i)
    {
        AxRegistryEntry const entry = registry->entry(i);
        AxReaderWriter& member = *entry.member;
        bool const isFile = dynamic_cast<AxReaderWriterFile*>(&member) != nullptr;
        if (entry.content || entry.keyword.isNull() || !(member.isValue() || isFile))
        {
            continue;
        }
        ValueShape const shape = isFile ? ValueShape::Text : shapeOf(member);
        if (shape != ValueShape::Numbers && shape != ValueShape::Other)
        {
            std::string const type = typeOf(shape);
            auto const [place, isNew] = attributes.try_emplace(entry.keyword.string().string(), type);
            place->second = isNew || place->second == type ? type : "xs:string";
        }
    }
}

void appendElement(std::string& text, char const* tag, char const* typeKeyword, Attributes attributes,
                   TypeInfo::Kind kind)
{
    attributes.erase("name");
    attributes.erase(typeKeyword);
    text.append("  <xs:element name=\"")
        .append(tag)
        .append("\">\n    <xs:complexType>\n      <xs:sequence>"
                "<xs:any minOccurs=\"0\" maxOccurs=\"unbounded\" "
                "processContents=\"lax\"/></xs:sequence>\n"
                "      <xs:attribute name=\"name\" type=\"xs:string\"/>\n");
    text.append("      <xs:attribute name=\"")
        .append(typeKeyword)
        .append("\"><xs:simpleType><xs:restriction "
                "base=\"xs:string\">\n");
    for (TypeInfo const& type : knownTypes())
    {
        if (type.kind == kind)
        {
            text += "        <xs:enumeration value=\"" + type.name + "\"/>\n";
        }
    }
    text += "      </xs:restriction></xs:simpleType></xs:attribute>\n";
    for (auto const& [name, type] : attributes)
    {
        text += "      <xs:attribute name=\"" + name + "\" type=\"" + type + "\"/>\n";
    }
    text += "      <xs:anyAttribute processContents=\"lax\"/>\n    </xs:complexType>\n  </xs:element>\n";
}
} // namespace

std::string xmlSchema()
{
    installedFactories();
    Findings const muted(Findings::Print::Never);
    Attributes records;
    Attributes components;
    for (TypeInfo const& type : knownTypes())
    {
        if (type.kind == TypeInfo::Kind::Record)
        {
            addAttributes(records,
                          *std::unique_ptr<AxReaderWriter>(AxZedObjectParameters::createParameters(type.name.c_str())));
        }
        else if (type.kind == TypeInfo::Kind::Component)
        {
            addAttributes(components, *std::unique_ptr<AxReaderWriter>(
                                          AxComponentDescriptor::createComponentDescriptor(type.name.c_str())));
        }
    }
    std::string text = theHead;
    appendElement(text, "platform", "parameter-type", records, TypeInfo::Kind::Record);
    appendElement(text, "componentDescriptor", "component-descriptor-type", components, TypeInfo::Kind::Component);
    return text + "</xs:schema>\n";
}
