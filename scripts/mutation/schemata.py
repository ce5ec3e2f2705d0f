"""Writes a file with all its changes in it, each behind its number."""

import re


def rewritten(text, mutants):
    """Every line moves by one and no more, so that a compiler's complaint leads back to the change."""
    ordered = sorted(mutants, key=lambda mutant: (mutant.start, -mutant.end, mutant.number))
    return '#include "mutation/Switch.h"\n' + render(text, 0, len(text), ordered)


def render(text, start, end, mutants):
    """The text from `start` to `end`; `mutants` are those that lie in it."""
    parts = []
    position = start
    while mutants:
        outer = mutants[0]
        group = [mutant for mutant in mutants if (mutant.start, mutant.end) == (outer.start, outer.end)]
        inside = [mutant for mutant in mutants if mutant.start >= outer.start and mutant.end <= outer.end and mutant not in group]
        parts.append(text[position:outer.start])
        inner = render(text, outer.start, outer.end, inside)
        for mutant in group:
            inner = switched(mutant, inner)
        parts.append(inner)
        position = outer.end
        done = {mutant.number for mutant in group + inside}
        mutants = [mutant for mutant in mutants if mutant.number not in done]
    parts.append(text[position:end])
    return "".join(parts)


def switched(mutant, inner):
    condition = f"mutantIs({mutant.number})"
    if mutant.kind == "statement":
        return f"{{ if (!{condition}) {{ {inner} }} }}"
    if mutant.kind in ("condition", "result"):
        return f"({condition} != static_cast<bool>({inner}))"
    return f"({condition} ? ({one_line(mutant.after)}) : ({inner}))"


def one_line(text):
    return " ".join(re.sub(r"//[^\n]*", "", text).split("\n")) if "\n" in text else text
