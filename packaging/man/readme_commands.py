"""Finds the commands that the README shows."""
import re

HEADING = "## Without a workstation"


def readme_commands(readme):
    """@return pairs of what a command is for and the command, from the block below the heading: a
    line with a comment, then the command."""
    section = readme.split(HEADING + "\n", 1)[1]
    block = re.search(r"```sh\n(.*?)```", section, re.DOTALL)[1]
    pairs = re.findall(r"^# (.+)\n((?:.*\\\n)*.+)$", block, re.MULTILINE)
    if len(pairs) * 2 != len([line for line in block.splitlines() if line]):
        raise ValueError("README: each command needs a line with a comment above it")
    return pairs
