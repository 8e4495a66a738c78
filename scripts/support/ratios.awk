# SPDX-License-Identifier: MIT
# Prints the table of scripts/benchmark. Reads the rows of the table, "benchmark | work | benchmark | reference |
# target | measure", and then the results of Google Benchmark as JSON with one member per line.

FNR == 1 { input++ }

input == 1 && !/^#/ && NF {
    split($0, cells, / *\| */)
    row++
    sub(/^ */, "", cells[1])
    mine[row] = cells[1]
    work[row] = cells[2]
    theirs[row] = cells[3]
    reference[row] = cells[4]
    target[row] = cells[5]
    measure[row] = cells[6]
    sub(/ *$/, "", measure[row])
}

# The members of one run are between "{" and "}"; the name comes first.
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

# Stores a run: the median of several repetitions, or the only one.
function keep(    name)
{
    name = member["run_name"] != "" ? member["run_name"] : member["name"]
    sub(/\/(iterations|repeats|manual_time|process_time|real_time)(:|\/|$).*/, "", name)
    if (member["error_occurred"] == "true") {
        problem[name] = member["error_message"]
        return
    }
    if (member["run_type"] == "aggregate" && member["aggregate_name"] != "median")
        return
    if (member["run_type"] != "aggregate" && (name, "time") in result)
        return
    for (key in member)
        result[name, key] = member[key]
    result[name, "time"] = member["real_time"] * seconds(member["time_unit"])
    if (!("cpu" in member))
        result[name, "cpu"] = member["cpu_time"] * seconds(member["time_unit"])
}

function seconds(unit)
{
    return unit == "ns" ? 1e-9 : unit == "us" ? 1e-6 : unit == "ms" ? 1e-3 : 1
}

function report(i,    my_value, their_value, ratio)
{
    my_value = (mine[i], measure[i]) in result ? result[mine[i], measure[i]] : ""
    their_value = (theirs[i], measure[i]) in result ? result[theirs[i], measure[i]] : ""
    ratio = "–"
    if (theirs[i] == "-")
        ratio = my_value == "" ? "–" : shown(my_value, measure[i]) verdict(my_value, target[i])
    else if (my_value != "" && their_value > 0)
        ratio = sprintf("%.2f", my_value / their_value) verdict(my_value / their_value, target[i])
    if (ratio == "–" && mine[i] in problem)
        ratio = problem[mine[i]]
    else if (ratio == "–" && theirs[i] in problem)
        ratio = problem[theirs[i]]
    print_row(work[i] "|" shown(my_value, measure[i]) "|" (theirs[i] == "-" ? "–" : reference[i]) "|" shown(their_value, measure[i]) "|" wanted(i) "|" ratio)
}

function verdict(value, limit)
{
    if (limit == "-")
        return ""
    return value + 0 <= limit + 0 ? " ✓" : " ✗"
}

function wanted(i)
{
    if (target[i] == "-")
        return "–"
    return "≤ " target[i] (theirs[i] == "-" ? "" : " ×")
}

function shown(number, kind)
{
    if (number == "")
        return "–"
    number += 0
    if (kind == "time" || kind == "cpu")
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
