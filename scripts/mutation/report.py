"""Says how many changes were noticed, and which were not."""

OUTCOMES = ["killed", "survived", "unreached", "equivalent"]


def write(path, mutants, results):
    """@return 0 when every change was noticed or is known to change nothing"""
    lines = [*table(mutants, results), "", *survivors(mutants, results)]
    path.write_text("\n".join(lines) + "\n")
    print("\n".join(lines))
    return 0 if all(result[0] in ("killed", "equivalent") for result in results.values()) else 1


def table(mutants, results):
    rows = {}
    for mutant in mutants:
        for name in (mutant.folder(), "all"):
            row = rows.setdefault(name, dict.fromkeys(OUTCOMES, 0))
            row[results[mutant.number][0]] += 1
    yield f"{'folder':14}{'killed':>9}{'survived':>10}{'unreached':>11}{'equivalent':>12}{'noticed':>9}"
    for name in sorted(rows, key=lambda name: (name == "all", name)):
        row = rows[name]
        meant = row["killed"] + row["survived"] + row["unreached"]
        share = f"{100 * row['killed'] / meant:.1f} %" if meant else "-"
        yield f"{name:14}{row['killed']:9}{row['survived']:10}{row['unreached']:11}{row['equivalent']:12}{share:>9}"


def survivors(mutants, results):
    for outcome, title in (("survived", "No test noticed:"), ("unreached", "No test gets there:"), ("equivalent", "Known to change nothing:")):
        listed = [mutant for mutant in mutants if results[mutant.number][0] == outcome]
        if listed:
            yield title
        for mutant in listed:
            yield f"  {mutant.described()}"
            yield f"      {mutant.name()}"
            if outcome == "equivalent":
                yield f"      {results[mutant.number][1]}"
