"""What a program tells of its command line (src/cli/description.h), read."""
import subprocess
from dataclasses import dataclass, field


@dataclass
class Option:
    names: list[str]
    kind: str
    words: list[str]
    demands: list[str]
    about: str

    @property
    def takes_value(self):
        return bool(self.kind)


@dataclass
class Command:
    name: str
    about: str
    options: list[Option] = field(default_factory=list)
    values: list[Option] = field(default_factory=list)


@dataclass
class Program(Command):
    commands: list[Command] = field(default_factory=list)
    footer: list[str] = field(default_factory=list)


def split(text):
    return [part for part in text.split(",") if part]


def ask(path):
    """The description of the program at that path."""
    told = subprocess.run([path, "--descreve-opcoes"], check=True, capture_output=True,
                          encoding="utf-8").stdout
    return read(told)


def read(told):
    program = None
    for line in told.splitlines():
        what, *parts = line.split("\t")
        if what == "program":
            program = Program(*parts)
        elif what == "command":
            program.commands.append(Command(*parts))
        elif what == "footer":
            program.footer.append(parts[0])
        elif what in ("option", "value"):
            owner_name, names, kind, words, demands, about = parts
            owner = next((c for c in program.commands if c.name == owner_name), program)
            one = Option(split(names), kind, split(words), split(demands), about)
            (owner.options if what == "option" else owner.values).append(one)
        else:
            raise ValueError(f"unknown line: {line}")
    return program
