#include "Catalogue.h"

#include <cstdio>
#include <set>
#include <string>

/// Prints the words that parameter files are made of, as the fuzzer reads them: every type and keyword of the
/// registries, and the words of tables, systems and XML.
int main()
{
    std::set<std::string> words = {"\\\"",
                                   "true",
                                   "false",
                                   "-1",
                                   "1e308",
                                   "nan",
                                   "$",
                                   "variables",
                                   "version",
                                   "entity-range",
                                   "range-list",
                                   "range-entry",
                                   "entity-type",
                                   "hit",
                                   "range-determinant",
                                   "angle",
                                   "coefficients",
                                   "ammo-select",
                                   "munition",
                                   "angle-of-incidence",
                                   "<simObject",
                                   "</simObject>",
                                   "<platform",
                                   "name=",
                                   "value=",
                                   "<objectType",
                                   "<matchType",
                                   "<variable",
                                   "&#36;",
                                   "<![CDATA["};
    for (TypeInfo const& type : knownTypes())
    {
        words.insert(type.name);
        for (KeywordInfo const& keyword : type.keywords)
        {
            words.insert(std::string(keyword.keyword()));
        }
    }
    for (std::string const& word : words)
    {
        if (!word.empty())
        {
            std::printf("\"%s\"\n", word.c_str());
        }
    }
}
