"""completion.py PROGRAM OUT: bash's completion of a program, from what it tells of itself."""
import sys

from description import ask

# The kinds of values that are names of files and folders; all others stay as typed.
FOLDERS = ("PASTA",)
FILES = ("ARQUIVO", "BANCO")

TEMPLATE = """\
# bash completion for {name}

{function}() {{
    local cur=${{COMP_WORDS[COMP_CWORD]}} prev=${{COMP_WORDS[COMP_CWORD - 1]}} command= word
    # Where "=" parts words, --option=value is three of them.
    if [[ $cur == "=" ]]; then
        cur=
    elif [[ $prev == "=" ]] && ((COMP_CWORD > 1)); then
        prev=${{COMP_WORDS[COMP_CWORD - 2]}}
    fi
    COMPREPLY=()
    for word in "${{COMP_WORDS[@]:1:COMP_CWORD-1}}"; do
        case $word in
        {commands}) command=$word ;;
        esac
    done
    case $command:$prev in
{values}
    esac
    if [[ $cur == -* ]]; then
        case $command in
{options}
        esac
    {plain}
    fi
}}
complete -F {function} {name}
"""

FOLDER_NAMES = "mapfile -t COMPREPLY < <(compgen -d -- \"$cur\") && compopt -o filenames"
FILE_NAMES = "mapfile -t COMPREPLY < <(compgen -f -- \"$cur\") && compopt -o filenames"


def words(texts):
    return "mapfile -t COMPREPLY < <(compgen -W '{}' -- \"$cur\")".format(" ".join(texts))


def of_value(option):
    if option.words:
        return words(option.words)
    if option.kind in FOLDERS:
        return FOLDER_NAMES
    return FILE_NAMES if option.kind in FILES else ":"


def names_of(options):
    return [name for option in options for name in option.names if name.startswith("--")]


def value_cases(program):
    """What follows an option that takes a value: each kind of words once."""
    after = {}
    for owner in (program, *program.commands):
        where = "*" if owner is program else owner.name
        for option in owner.options:
            if option.takes_value:
                after.setdefault(of_value(option), []).extend(
                    f"{where}:{name}" for name in option.names)
    return "\n".join(f"    {' | '.join(names)})\n        {words}\n        return\n        ;;"
                     for words, names in after.items()) or "    ::) ;;"


def option_cases(program):
    """Options of the program stand before its command and after it."""
    cases = [f"        {command.name}) "
             f"{words(dict.fromkeys(names_of(command.options) + names_of(program.options)))} ;;"
             for command in program.commands]
    cases.append(f"        *) {words(names_of(program.options))} ;;")
    return "\n".join(cases)


def plain_words(program):
    """What completes a word that is no option: a command, or files where the program takes them."""
    if program.commands:
        names = words(command.name for command in program.commands)
        return (f"elif [[ -z $command ]]; then\n        {names}\n    else\n        {FILE_NAMES}")
    takes_files = any(value.kind in FILES for value in program.values)
    return f"else\n        {FILE_NAMES if takes_files else ':'}"


def completion(program):
    return TEMPLATE.format(name=program.name, function="_" + program.name.replace("-", "_"),
                           commands=" | ".join(c.name for c in program.commands) or '""',
                           values=value_cases(program), options=option_cases(program),
                           plain=plain_words(program))


def main():
    path, out = sys.argv[1:]
    with open(out, "w", encoding="utf-8") as file:
        file.write(completion(ask(path)))


if __name__ == "__main__":
    main()
