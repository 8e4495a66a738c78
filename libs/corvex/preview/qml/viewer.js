// SPDX-License-Identifier: MIT
// The functions of "qmlViewer". They read the variables as properties of "cells", and the logs as properties
// of "logs", so that a binding is evaluated again exactly when a value that it reads has changed.
(function (cells, logs, device) {
    "use strict";

    function report(message) {
        device.report(message, new Error().stack);
    }

    function cellOf(name) {
        const cell = cells[name];
        if (cell === undefined)
            report("There is no variable \"" + name + "\".");
        return cell;
    }

    function fromLog(name, read) {
        const log = logs[name];
        if (log === undefined) {
            report("There is no log \"" + name + "\".");
            return 0;
        }
        return log.revision >= 0 ? read() : 0;
    }

    function text(value) {
        return device.text(value);
    }

    return {
        getVariableValue(name) {
            const cell = cells[name];
            return cell === undefined ? (cellOf(name), "") : cell.value;
        },
        getVariableValueString(name) {
            const cell = cellOf(name);
            return cell === undefined ? "" : text(cell.value);
        },
        setVariableValue(name, value, type) {
            if (cellOf(name) !== undefined && !device.setVariable(name, value))
                report("\"" + text(value) + "\" is not a valid value for the variable \"" + name + "\".");
        },
        assignPropertyValue(element, property, type, value) {
            const converted = device.converted(value, type);
            if (converted === undefined)
                report("\"" + text(value) + "\" is not a valid value for the property \"" + property + "\".");
            else
                element[property] = converted;
        },
        convertToColorFromName(name) {
            const color = device.color(name);
            if (color === undefined)
                report("\"" + text(name) + "\" is not a color.");
            return color === undefined ? "#00000000" : color;
        },

        // The newest point has index 0.
        getValueAt(name, index) { return fromLog(name, () => device.logValue(name, index)); },
        getLogCount(name) { return fromLog(name, () => device.logCount(name)); },
        getLogMax(name) { return fromLog(name, () => device.logMaximum(name)); },
        getLogMin(name) { return fromLog(name, () => device.logMinimum(name)); },
        getLogAvg(name) { return fromLog(name, () => device.logAverage(name)); },
        // a + b x + c x^2 ... for (x, a, b, c ...)
        poly(x, ...coefficients) {
            return coefficients.reduceRight((sum, coefficient) => sum * x + Number(coefficient), 0);
        },

        // One part of the text between separators; index 0 is the first.
        split(value, separator, index) {
            const pieces = text(value).split(text(separator));
            return index === undefined ? pieces : pieces[Number(index)] ?? "";
        },
        replace(value, old, by) { return text(value).split(text(old)).join(text(by)); },
        replaceFirst(value, old, by) {
            const at = text(value).indexOf(text(old));
            return at < 0 ? text(value)
                          : text(value).slice(0, at) + text(by) + text(value).slice(at + text(old).length);
        },
        replaceLast(value, old, by) {
            const at = text(value).lastIndexOf(text(old));
            return at < 0 ? text(value)
                          : text(value).slice(0, at) + text(by) + text(value).slice(at + text(old).length);
        },
        // From one position up to, but not including, another; by default to the end.
        subString(value, from, to) {
            return text(value).substring(Number(from), to === undefined ? undefined : Number(to));
        },
        toLowerCase(value) { return text(value).toLowerCase(); },
        toUpperCase(value) { return text(value).toUpperCase(); },
        trim(value) { return text(value).trim(); },
        length(value) { return text(value).length; }
    };
})
