"""man_page.py PROGRAM VERSION DATE OTHERS OUT: the manual page of a program, from what it tells
of itself. OTHERS: the programs that it refers to, parted by commas."""
import sys

from description import ask


def plain(text):
    """Text as roff prints it: no request, no escape, dashes as typed."""
    text = text.replace("\\", "\\e").replace("-", "\\-")
    return "\\&" + text if text[:1] in (".", "'") else text


def sentence(text):
    text = text.strip()
    text = text[:1].upper() + text[1:]
    return text if text.endswith(".") else text + "."


def tag(option):
    names = ", ".join(f"\\fB{plain(name)}\\fR" for name in option.names)
    return f"{names} \\fI{plain(option.kind)}\\fR" if option.takes_value else names


def about(option):
    text = plain(sentence(option.about))
    if "required" in option.demands:
        text += " Obrigatório."
    return text


def listed(options):
    lines = []
    for option in options:
        lines += [".TP", tag(option), about(option)]
    return lines


def value_tag(value):
    name = f"\\fI{plain(value.names[0])}\\fR"
    return name + " ..." if "repeated" in value.demands else name


def values_of(command):
    lines = []
    for value in command.values:
        lines += [".TP", value_tag(value), about(value)]
    return lines


def asks_help(option):
    return "--ajuda" in option.names


def synopsis(program, command=None):
    line = f".B {plain(program.name)}\n[\\fIOPÇÕES\\fR]"
    if command:
        line += f" \\fB{plain(command.name)}\\fR [\\fIOPÇÕES DO COMANDO\\fR]"
    for value in (command or program).values:
        shown = value_tag(value)
        line += " " + (shown if "required" in value.demands else f"[{shown}]")
    return line


def page(program, version, date, others):
    lines = [f'.TH {plain(program.name).upper()} 1 "{date}" "TarnEmissao {version}"'
             ' "Manual do TarnEmissao"', ".SH NOME",
             f"{plain(program.name)} \\- {plain(program.about.rstrip('.'))}", ".SH SINOPSE"]
    synopses = [synopsis(program, command) for command in program.commands] or [synopsis(program)]
    lines.append("\n.br\n".join(synopses))
    lines += [".SH DESCRIÇÃO", plain(sentence(program.about))]
    lines += values_of(program)
    lines += [".SH OPÇÕES"] + listed(program.options)
    if program.commands:
        lines.append(".SH COMANDOS")
    for command in program.commands:
        lines += [f'.SS "{plain(command.name)}"', plain(sentence(command.about))]
        lines += values_of(command) + listed(o for o in command.options if not asks_help(o))
    footer = [line for line in program.footer if line]
    if footer:
        lines += [".SH OBSERVAÇÕES"] + [plain(line) for line in footer]
    if others:
        lines += [".SH VEJA TAMBÉM",
                  ",\n".join(f".BR {plain(other)} (1)" for other in others)]
    return "\n".join(lines) + "\n"


def main():
    path, version, date, others, out = sys.argv[1:]
    text = page(ask(path), version, date, [other for other in others.split(",") if other])
    with open(out, "w", encoding="utf-8") as file:
        file.write(text)


if __name__ == "__main__":
    main()
