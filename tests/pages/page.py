#!/usr/bin/env python3
# SPDX-FileCopyrightText: The Kelto developers
# SPDX-License-Identifier: MIT

"""Does what a page of the documentation tells its reader to do.

    page.py links PAGE...    the links between pages, and to their headings
    page.py walk PAGE        everything else, against an installed Kelto

Walking a page goes through its blocks of code from top to bottom, in an empty directory:

    `name`: in the line before    the block is written into a file of that name
    ```sh                         is run, and has to succeed
    ```console                    each line behind "$ " is run, and has to print the lines below it
    ```cpp, ```c++                is a program, or a part of one, and has to compile
    <!-- not run: why -->         in the line before: the block is left alone

Lines that are not a part of the page, such as somebody who works with a window, are added by
"<!-- test: command -->". What Kelto is installed below is told by KELTO_PREFIX.
"""

import os
import re
import subprocess
import sys
from pathlib import Path

FRAGMENT = """#include <Kelto/Kelto>
#include <Kelto/Forms/KeltoParameterForm>
#include <Kelto/Forms/KeltoResultView>
#include <QtCore>
{includes}
void fragment(AUTH_SET registry, AUTH_INF item, QVector<QPair<QString, QVariant>> values)
{{
{body}
}}
"""


class Block:
    def __init__(self, language, line, mark):
        self.language = language
        self.line = line
        self.text = ""
        self.file = None
        self.is_skipped = mark.startswith("<!-- not run: ")
        name = re.search(r"`([^` ]+)`:$", mark)
        if name:
            self.file = name.group(1)


def blocks_of(page):
    """The blocks of code of a page, and as blocks of the language "test" what only the test does."""
    blocks, block, mark = [], None, ""
    for number, line in enumerate(page.read_text(encoding="utf-8").splitlines(), 1):
        test = re.fullmatch(r"<!-- test: (.*) -->", line)
        if block is not None and line.strip() == "```":
            blocks.append(block)
            block, mark = None, ""
        elif block is not None:
            block.text += line + "\n"
        elif line.startswith("```"):
            block = Block(line[3:].strip(), number, mark)
        elif test:
            blocks.append(Block("test", number, ""))
            blocks[-1].text = test.group(1) + "\n"
        elif line.strip():
            mark = line.strip()
    if block is not None:
        sys.exit(f"{page}:{block.line}: the block of code has no end.")
    return blocks


def heredoc(text):
    return f"<<'END_OF_BLOCK'\n{text}END_OF_BLOCK\n"


def fragment_of(text):
    lines = text.splitlines()
    includes = [line for line in lines if line.startswith("#include")]
    body = [line for line in lines if not line.startswith("#include")]
    return FRAGMENT.format(includes="\n".join(includes), body="\n".join(body))


def console_steps(text):
    """Pairs of a command and what it prints."""
    steps = []
    for line in text.splitlines(keepends=True):
        if line.startswith("$ "):
            steps.append([line[2:], ""])
        elif steps:
            steps[-1][1] += line
    return steps


def script_of(page):
    script = (Path(__file__).parent / "walk.sh").read_text(encoding="utf-8")
    blocks = blocks_of(page)
    if not blocks:
        sys.exit(f"{page}: there is nothing to do on this page.")
    for block in blocks:
        if block.is_skipped:
            continue
        script += f"at={page}:{block.line}\n"
        if block.file:
            script += f"put '{block.file}' {heredoc(block.text)}"
        elif block.language in ("sh", "test"):
            script += block.text
        elif block.language == "console":
            for command, output in console_steps(block.text):
                script += f"expect {heredoc(command + output)}"
        elif block.language == "cpp":
            script += f"compile {heredoc(block.text)}"
        elif block.language == "c++":
            script += f"compile {heredoc(fragment_of(block.text))}"
    return script


def walk(page, directory):
    os.environ["KELTO_PAGES"] = str(Path(__file__).resolve().parent)
    subprocess.run(["rm", "-rf", directory], check=True)
    os.makedirs(directory)
    return subprocess.run(["bash", "-c", script_of(page)], cwd=directory, check=False).returncode


def anchor_of(heading):
    text = re.sub(r"[`*]|\[([^\]]*)\]\([^)]*\)", r"\1", heading.strip().lower())
    return re.sub(r"[^\w\- ]", "", text).replace(" ", "-")


def text_without_code(page):
    text = page.read_text(encoding="utf-8")
    text = re.sub(r"^```.*?^```$", "", text, flags=re.DOTALL | re.MULTILINE)
    return text


def dead_links(page):
    text = re.sub(r"`[^`\n]*`", "", text_without_code(page))
    for target in re.findall(r"\]\(([^)\s]+)\)", text):
        if re.match(r"[a-z]+:", target):
            continue
        path, _, anchor = target.partition("#")
        other = (page.parent / path).resolve() if path else page
        if not other.exists():
            yield f"{page}: there is no {target}"
        elif anchor and other.suffix == ".md":
            headings = re.findall(r"^#+ (.*)$", text_without_code(other), flags=re.MULTILINE)
            if anchor not in map(anchor_of, headings):
                yield f"{page}: there is no heading for {target}"


def main():
    what, *arguments = sys.argv[1:]
    if what == "links":
        problems = [problem for page in arguments for problem in dead_links(Path(page))]
        print("\n".join(problems))
        return 1 if problems or not arguments else 0
    page, directory = arguments
    return walk(Path(page).resolve(), directory)


if __name__ == "__main__":
    sys.exit(main())
