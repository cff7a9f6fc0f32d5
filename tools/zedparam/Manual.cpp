#include "Manual.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <vector>

namespace
{
/// The sub-commands in their order, but for hidden ones.
std::vector<CLI::App const*> commands(CLI::App const& app)
{
    return app.get_subcommands([](CLI::App const* command) { return !command->get_group().empty(); });
}

std::vector<CLI::Option const*> options(CLI::App const& app)
{
    std::vector<CLI::Option const*> all;
    for (CLI::Option const* option : app.get_options([](CLI::Option const*) { return true; }))
    {
        if (!app.get_name().empty() || option != app.get_help_ptr())
        {
            all.push_back(option);
        }
    }
    for (CLI::App const* group : commands(app))
    {
        if (group->get_name().empty()) // a group of options is a sub-command without a name
        {
            std::vector<CLI::Option const*> const inside = options(*group);
            all.insert(all.end(), inside.begin(), inside.end());
        }
    }
    return all;
}

std::vector<std::string> spellings(CLI::Option const& option)
{
    std::vector<std::string> all;
    for (std::string const& name : option.get_snames())
    {
        all.push_back("-" + name);
    }
    for (std::string const& name : option.get_lnames())
    {
        all.push_back("--" + name);
    }
    return all;
}

bool takesValue(CLI::Option const& option)
{
    return option.get_items_expected_max() > 0;
}

std::string escaped(std::string const& text, std::string_view special, char escape)
{
    std::string out;
    for (char const letter : text)
    {
        out.append(special.find(letter) != std::string_view::npos ? 1 : 0, escape);
        out += letter;
    }
    return out;
}

/// Text of a man page: no line is taken for a request, and a hyphen is one.
std::string roff(std::string const& text)
{
    std::string out = escaped(text, "\\-", '\\');
    return !out.empty() && (out.front() == '.' || out.front() == '\'') ? "\\&" + out : out;
}

std::string joined(std::vector<std::string> const& parts, char const* separator)
{
    std::string text;
    for (std::string const& part : parts)
    {
        text.append(text.empty() ? "" : separator).append(part);
    }
    return text;
}

/// Puts the words up to the cursor together again, which bash divides at ":" and "=" as well, and takes their quotes.
constexpr std::string_view theBashWords = R"sh(_zedparam_words()
{
    local rest=${COMP_LINE:0:COMP_POINT} i blanks
    words=()
    for ((i = 0; i <= COMP_CWORD; i++)); do
        blanks=${rest%%[![:space:]]*}
        rest=${rest#"$blanks"}
        word=${COMP_WORDS[i]}
        [[ $rest == "$word"* ]] || word=$rest
        rest=${rest#"$word"}
        if ((i == 0)) || [[ -n $blanks ]]; then
            words+=("$word")
        else
            words[${#words[@]} - 1]+=$word
        fi
    done
    for ((i = 0; i < ${#words[@]}; i++)); do
        word=${words[i]}
        case $word in
            \'*) word=${word#\'} word=${word%\'} ;;
            \"*) word=${word#\"} word=${word%\"} ;;
            '~/'*) word=$HOME/${word#??} ;;
            *) word=${word//\\/} ;;
        esac
        words[i]=$word
    done
}
)sh";

/// Asks the command itself, with what bash takes for words of their own left as it stands. Without an answer bash goes
/// on with the names of files.
constexpr std::string_view theBashQuestion = R"sh(
    local prefix=
    [[ $COMP_WORDBREAKS == *:* ]] && prefix=${current%"${current##*:}"}
    if [[ $COMP_WORDBREAKS == *=* && ${current#"$prefix"} == *=* ]]; then
        prefix=${current%"${current##*=}"}
    fi
    while IFS= read -r word; do
        [[ $word == *[/=] || ${words[1]}:${#words[@]} == find:4 ]] && compopt -o nospace 2>/dev/null
        word=${word#"$prefix"}
        [[ ${COMP_WORDS[COMP_CWORD]} == [\"\']* ]] || printf -v word %q "$word"
        COMPREPLY+=("$word")
    done < <("${words[0]}" complete -- "${words[@]:1}" 2>/dev/null)
}
complete -o default -F _zedparam zedparam
)sh";

constexpr std::string_view theZshQuestion = R"sh(_zedparam_values()
{
    local -a found open closed
    found=(${(f)"$("$program" complete -- ${(Q)words[1,CURRENT-1]} "${(Q)PREFIX}" 2>/dev/null)"})
    if ((! $#found)); then
        _files
        return
    fi
    open=(${(M)found:#*[/=]})
    closed=(${found:#*[/=]})
    (($#closed)) && compadd -a closed
    (($#open)) && compadd -S '' -a open
}
)sh";
} // namespace

std::string choices(CLI::Option const& option)
{
    std::string const type = option.get_type_name();
    std::size_t const begin = type.find('{');
    std::size_t const end = type.find('}', begin);
    std::string words = begin < end && end != std::string::npos ? type.substr(begin + 1, end - begin - 1) : "";
    std::replace(words.begin(), words.end(), ',', ' ');
    return words;
}

std::string bashCompletion(CLI::App const& app)
{
    std::vector<std::string> names;
    std::string cases;
    std::string values;
    for (CLI::App const* command : commands(app))
    {
        names.push_back(command->get_name());
        std::vector<std::string> words;
        for (CLI::Option const* option : options(*command))
        {
            std::vector<std::string> const its = spellings(*option);
            words.insert(words.end(), its.begin(), its.end());
            if (std::string const known = choices(*option); !known.empty() && !its.empty())
            {
                values += "        " + command->get_name() + ":" + its.back() + ") choices=\"" + known + "\" ;;\n";
            }
        }
        cases += "            " + command->get_name() + ") choices=\"" + joined(words, " ") + "\" ;;\n";
    }
    std::string text = "# Completion of zedparam for bash.\n";
    text += theBashWords;
    return text +
           "_zedparam()\n{\n"
           "    local words word current choices=\n"
           "    COMPREPLY=()\n"
           "    _zedparam_words\n"
           "    current=${words[${#words[@]} - 1]}\n"
           "    if ((${#words[@]} == 2)); then\n"
           "        COMPREPLY=($(compgen -W \"" +
           joined(names, " ") +
           " --help --version\" -- \"$current\"))\n"
           "        return\n"
           "    fi\n"
           "    case ${words[1]}:${words[${#words[@]} - 2]} in\n" +
           values +
           "    esac\n"
           "    if [[ -z $choices && $current == -* ]]; then\n"
           "        case ${words[1]} in\n" +
           cases +
           "        esac\n"
           "    fi\n"
           "    if [[ -n $choices ]]; then\n"
           "        COMPREPLY=($(compgen -W \"$choices\" -- \"$current\"))\n"
           "        return\n"
           "    fi" +
           std::string(theBashQuestion);
}

std::string zshCompletion(CLI::App const& app)
{
    auto const quoted = [](std::string const& text) { return escaped(text, "[]:\\", '\\'); };
    auto const inQuotes = [](std::string const& text)
    {
        std::string out;
        for (char const letter : text)
        {
            out += letter == '\'' ? std::string("'\\''") : std::string(1, letter);
        }
        return out;
    };
    std::string names;
    std::string cases;
    for (CLI::App const* command : commands(app))
    {
        names += "        '" + inQuotes(command->get_name() + ":" + quoted(command->get_description())) + "'\n";
        cases += "        " + command->get_name() + ")\n            _arguments";
        for (CLI::Option const* option : options(*command))
        {
            std::string const words = choices(*option);
            std::string const action = words.empty() ? "_files" : "(" + words + ")";
            for (std::string const& spelling : spellings(*option))
            {
                std::string const value = takesValue(*option) ? ":value:" + action : "";
                cases += " \\\n                '" +
                         inQuotes(spelling + "[" + quoted(option->get_description()) + "]" + value) + "'";
            }
        }
        cases += " \\\n                '*: :_zedparam_values'\n            ;;\n";
    }
    return "#compdef zedparam\n# Completion of zedparam for zsh.\n" + std::string(theZshQuestion) +
           "_zedparam()\n{\n"
           "    local -a commands\n"
           "    commands=(\n" +
           names +
           "    )\n"
           "    if ((CURRENT == 2)); then\n"
           "        _describe command commands\n"
           "        return\n"
           "    fi\n"
           "    local program=${(Q)words[1]} command=$words[2]\n"
           "    [[ $program == '~/'* ]] && program=$HOME/${program#??}\n"
           "    shift words\n"
           "    ((CURRENT--))\n"
           "    case $command in\n" +
           cases +
           "    esac\n"
           "}\n"
           "_zedparam \"$@\"\n";
}

std::string manPage(CLI::App const& app)
{
    std::string text = ".TH ZEDPARAM 1 \"\" \"" + app.version() + "\" \"User Commands\"\n.SH NAME\nzedparam \\- " +
                       roff(app.get_description()) +
                       "\n.SH SYNOPSIS\n.B zedparam\n.I COMMAND\n[\\fIOPTIONS\\fR] \\fIARGUMENTS\\fR\n.SH COMMANDS\n";
    for (CLI::App const* command : commands(app))
    {
        std::string synopsis = "\\fBzedparam " + roff(command->get_name()) + "\\fR";
        std::string details;
        for (CLI::Option const* option : options(*command))
        {
            std::vector<std::string> const names = spellings(*option);
            std::string const name = names.empty() ? option->get_name(true) : joined(names, ", ");
            std::string const value = names.empty() || !takesValue(*option) ? "" : " \\fIVALUE\\fR";
            if (names.empty())
            {
                synopsis += " \\fI" + roff(name) + "\\fR";
            }
            details +=
                ".RS\n.TP\n\\fB" + roff(name) + "\\fR" + value + "\n" + roff(option->get_description()) + "\n.RE\n";
        }
        text += ".SS " + synopsis + "\n" + roff(command->get_description()) + "\n" + details;
    }
    text += ".SH EXIT STATUS\n0: fine or same. 1: findings, different, or no answer. 2: could not run.\n";
    text += ".SH ENVIRONMENT\n.TP\nNO_COLOR\nWhen it is set and not empty, nothing is coloured.\n";
    return text;
}

std::string helpTexts(CLI::App const& app)
{
    std::string text = "# zedparam\n\nWhat `zedparam COMMAND --help` says.\n";
    for (CLI::App const* command : commands(app))
    {
        text += "\n## " + command->get_name() + "\n\n```\n" + command->help("zedparam");
        while (text.ends_with('\n'))
        {
            text.pop_back();
        }
        text += "\n```\n";
    }
    return text;
}
