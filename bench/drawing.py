#!/usr/bin/env python3
"""drawing.py FILE: prints a table of the results of graphics_bench. FILE is its output in JSON."""

import json
import sys


def main():
    with open(sys.argv[1], encoding="utf-8") as file:
        results = json.load(file)
    least = {}
    for run in sorted(results["benchmarks"], key=lambda run: run["family_index"]):
        if run["run_type"] == "iteration":
            name, side = run["run_name"].rsplit("/", 1)
            sides = least.setdefault(name, {})
            sides[side] = min(run["real_time"], sides.get(side, run["real_time"]))
    width = max(map(len, least))
    print(f"{'':{width}}    ours, ns  cairo, ns  ratio")
    for name, sides in least.items():
        ours, cairo = sides["ours"], sides["cairo"]
        print(f"{name:{width}}  {ours:10.0f} {cairo:10.0f}  {ours / cairo:5.2f}")


if __name__ == "__main__":
    main()
