// check_lines.js SCHEMA FILE...: holds each line of the files against a JSON Schema, and the schema against
// lines that are wrong.
const fs = require('fs');
const path = require('path');
const Ajv = require('ajv/dist/2020');

const [schemaFile, ...files] = process.argv.slice(2);
const holds = new Ajv({ allErrors: true }).compile(JSON.parse(fs.readFileSync(schemaFile)));

function fail(text) {
    console.error(text);
    process.exit(1);
}

const good = { kind: 'error', code: 'unreadable', message: 'No.', file: 'a.vmp' };
const wrong = [{ kind: 'guess' }, { code: 'no-such-code' }, { message: '' }, { question: 1 }, { file: 3 }];
if (!holds(good) || wrong.some((change) => holds({ ...good, ...change })))
    fail(`${schemaFile} takes what is wrong, or refuses what is right.`);

let count = 0;
for (const file of files) {
    const lines = fs.readFileSync(file, 'utf8').split('\n').filter((line) => line !== '');
    for (const line of lines) {
        // A question in an example stands alone; a result is where it belongs.
        const object = JSON.parse(line);
        const whole = object.kind ? object : { kind: 'result', code: 'info', message: 'x', exit: 0,
            file: 'a', input: 'a', format: 'project', size: 1, name: 'a', types: [], columnNames: [],
            titles: [], questionList: [object] };
        if (!holds(whole))
            fail(`${path.basename(file)}: ${line}\n${JSON.stringify(holds.errors, null, 1)}`);
    }
    count += lines.length;
}
if (count < 100)
    fail(`There are ${count} lines only: the tests of the headless command have to run first.`);
console.log(`${count} lines are as the schema has them.`);
