#!/usr/bin/env python3
"""sides.py FILE: prints a table of benchmarks that measure the same on two sides.

FILE is the output in JSON of a program whose benchmarks are named "what/side". The first side is
ours.
"""

import json
import sys


def main():
    with open(sys.argv[1], encoding="utf-8") as file:
        results = json.load(file)
    least = {}
    for run in sorted(results["benchmarks"], key=lambda run: run["family_index"]):
        if run["run_type"] == "iteration":
            name, side = run["run_name"].removesuffix("/manual_time").rsplit("/", 1)
            sides = least.setdefault(name, {})
            sides[side] = min(run["real_time"], sides.get(side, run["real_time"]))
    width = max(map(len, least))
    first, second = next(iter(least.values()))
    print(f"{'':{width}}  {first + ', ns':>10} {second + ', ns':>10}  ratio")
    for name, sides in least.items():
        ours, other = sides[first], sides[second]
        print(f"{name:{width}}  {ours:10.0f} {other:10.0f}  {ours / other:5.2f}")


if __name__ == "__main__":
    main()
