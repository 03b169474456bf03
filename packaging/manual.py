"""manual.py SOURCE SCREENS VERSION OUT: the clerk's manual as pages for a browser, in the folder OUT:
index.html, a page telas/NAME.html for each screen of the file SCREENS, which leads to its
chapter, and the pictures. Links to other documents of the sources become their names."""
import re
import shutil
import sys
from pathlib import Path

import markdown
from markdown.extensions.toc import TocExtension

STYLE = """\
:root { color-scheme: light dark; }
body { font: 1rem/1.5 "Liberation Sans", "DejaVu Sans", Arial, sans-serif; max-width: 60rem;
       margin: 0 auto; padding: 1rem; }
img { max-width: 100%; border: 1px solid #888; }
table { border-collapse: collapse; margin: 1rem 0; }
th, td { border: 1px solid #888; padding: .25rem .6rem; text-align: left; vertical-align: top; }
pre, code { font-family: "Liberation Mono", "DejaVu Sans Mono", monospace; }
h2 { border-top: 1px solid #888; padding-top: 1rem; }
"""

PAGE = """\
<!DOCTYPE html>
<html lang="pt-BR">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<title>{title}</title>
<style>
{style}</style>
</head>
<body>
{body}
<p><small>TarnEmissao {version}</small></p>
</body>
</html>
"""

LEADING = """\
<!DOCTYPE html>
<html lang="pt-BR">
<head>
<meta charset="utf-8">
<meta http-equiv="refresh" content="0; url=../index.html#{chapter}">
<title>Manual do faturista</title>
</head>
<body><p><a href="../index.html#{chapter}">Manual do faturista</a></p></body>
</html>
"""


def slug(text, _separator):
    """The name of a heading, as the links of the source spell it."""
    return re.sub(r"[^\w\- ]", "", text.strip().lower()).replace(" ", "-")


def html_of(text):
    # The sources are written for a renderer that begins a list or a table below a paragraph.
    return markdown.markdown(text, output_format="html", extensions=[
        "tables", "sane_lists", "fenced_code", TocExtension(slugify=slug)])


def without_foreign_links(text):
    return re.sub(r"\[([^\]]*)\]\([^)#:/]+\.md\)", r"\1", text)


def check_links(page, out):
    """Every link of the page leads somewhere."""
    names = set(re.findall(r'id="([^"]*)"', page))
    for link in re.findall(r'(?:href|src)="([^"]*)"', page):
        if link.startswith("#"):
            if link[1:] not in names:
                raise SystemExit(f"no heading for {link}")
        elif not (out / link).is_file():
            raise SystemExit(f"no file for {link}")
    return names


def main():
    source, screens, version, out = sys.argv[1:]
    source, out = Path(source), Path(out)
    shutil.rmtree(out, ignore_errors=True)
    (out / "telas").mkdir(parents=True)
    text = without_foreign_links(source.read_text(encoding="utf-8"))
    for picture in sorted(set(re.findall(r"\((manual/[^)]*\.png)\)", text))):
        (out / "figuras").mkdir(exist_ok=True)
        shutil.copyfile(source.parent / picture, out / "figuras" / Path(picture).name)
    body = html_of(text.replace("(manual/", "(figuras/"))
    title = re.search(r"^# (.*)$", text, re.M).group(1)
    page = PAGE.format(title=title, style=STYLE, body=body, version=version)
    names = check_links(page, out)
    (out / "index.html").write_text(page, encoding="utf-8")
    for line in Path(screens).read_text(encoding="utf-8").splitlines():
        if not line or line.startswith("#"):
            continue
        screen, chapter = line.split()
        if chapter not in names:
            raise SystemExit(f"{screens}: no chapter {chapter}")
        (out / "telas" / f"{screen}.html").write_text(LEADING.format(chapter=chapter),
                                                      encoding="utf-8")


if __name__ == "__main__":
    main()
