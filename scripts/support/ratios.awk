# SPDX-License-Identifier: MIT
# The table of scripts/benchmark. Reads the rows of the table, "pair | work | reference | target | measure",
# and then what Google Benchmark wrote about its runs as JSON, which has one member on each line.

FNR == 1 { input++ }

input == 1 && !/^#/ && NF {
    split($0, cells, / *\| */)
    row++
    sub(/^ */, "", cells[1])
    pair[row] = cells[1]
    work[row] = cells[2]
    reference[row] = cells[3]
    target[row] = cells[4]
    measure[row] = cells[5]
    sub(/ *$/, "", measure[row])
}

# The members of one run stand between "{" and "}"; the name comes first.
input > 1 && /^ *"[^"]+":/ {
    key = $1
    gsub(/[":]/, "", key)
    value = $0
    sub(/^ *"[^"]+": */, "", value)
    sub(/,$/, "", value)
    gsub(/^"|"$/, "", value)
    member[key] = value
}
input > 1 && /^ *}/ {
    keep()
    split("", member)
}

END {
    titles = "Work|measured|Reference|measured|Target|Ratio"
    print_row(titles)
    print_row("---|--:|---|--:|--:|--:")
    for (i = 1; i <= row; i++)
        report(i)
}

# Remembers the run if it is one side of a pair: the median of several repetitions, or the only one.
function keep(    name, side, id)
{
    name = member["run_name"] != "" ? member["run_name"] : member["name"]
    if (!match(name, /\/(work|reference)(\/|$)/))
        return
    id = substr(name, 1, RSTART - 1)
    side = substr(name, RSTART + 1)
    sub(/\/.*/, "", side)
    if (member["error_occurred"] == "true") {
        problem[id] = member["error_message"]
        return
    }
    if (member["run_type"] == "aggregate" && member["aggregate_name"] != "median")
        return
    if (member["run_type"] != "aggregate" && (id, side, "time") in result)
        return
    for (key in member)
        result[id, side, key] = member[key]
    result[id, side, "time"] = member["real_time"] * seconds(member["time_unit"])
}

function seconds(unit)
{
    return unit == "ns" ? 1e-9 : unit == "us" ? 1e-6 : unit == "ms" ? 1e-3 : 1
}

function report(i,    mine, theirs, ratio, measured_work, measured_reference)
{
    measured_work = (pair[i], "work", measure[i]) in result
    measured_reference = (pair[i], "reference", measure[i]) in result
    mine = measured_work ? shown(result[pair[i], "work", measure[i]], measure[i]) : "–"
    theirs = measured_reference ? shown(result[pair[i], "reference", measure[i]], measure[i]) : "–"
    ratio = "–"
    if (reference[i] == "-")
        ratio = mine
    else if (measured_work && measured_reference && result[pair[i], "reference", measure[i]] > 0) {
        ratio = result[pair[i], "work", measure[i]] / result[pair[i], "reference", measure[i]]
        ratio = sprintf("%.2f %s", ratio, ratio <= target[i] + 0 ? "✓" : "✗")
    } else if (problem[pair[i]] != "")
        ratio = problem[pair[i]]
    print_row(work[i] "|" mine "|" reference[i] "|" theirs "|" wanted(i) "|" ratio)
}

function wanted(i)
{
    if (target[i] == "-")
        return "–"
    return "≤ " target[i] (reference[i] == "-" ? "" : " ×")
}

function shown(number, kind)
{
    if (kind == "time")
        return number >= 1 ? sprintf("%.2f s", number) : number >= 1e-3 ? sprintf("%.1f ms", number * 1e3) : sprintf("%.1f µs", number * 1e6)
    if (kind ~ /_bytes$/)
        return sprintf("%.1f MB", number / 1e6)
    return sprintf("%.1f", number)
}

function print_row(cells)
{
    gsub(/\|/, " | ", cells)
    print "| " cells " |"
}
