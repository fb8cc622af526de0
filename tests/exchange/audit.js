// Looks at pages in frames of given widths, as a reader of the screen, of the keyboard and of a phone
// would, and leaves the list of what it finds as the text of the document.
'use strict';

const text = (node) => (node.textContent || '').trim();
const all = (doc, selector) => [...doc.querySelectorAll(selector)];
const where = (node) => node.outerHTML.slice(0, 90);

function nameOf(doc, node) {
  const by = node.getAttribute('aria-labelledby');
  if (by) return by.split(/\s+/).map((id) => text(doc.getElementById(id) || {})).join(' ').trim();
  return node.getAttribute('aria-label') || node.getAttribute('alt') || text(node);
}

function isShown(view, node) {
  const box = node.getBoundingClientRect();
  return box.width > 0 && box.height > 0 && view.getComputedStyle(node).visibility === 'visible' &&
    box.right > 0;
}

function colours(value) {
  return [...value.matchAll(/rgba?\(([^)]+)\)/g)]
    .map((found) => found[1].split(/[\s,/]+/).map(Number))
    .filter((colour) => colour.length === 3 || colour[3] > 0);
}

// The colours that stand behind a text: those of the nearest box that has any.
function grounds(view, node) {
  for (let box = node; box; box = box.parentElement) {
    const style = view.getComputedStyle(box);
    const found = colours(style.backgroundImage).concat(colours(style.backgroundColor));
    if (found.length) return found;
  }
  return [[255, 255, 255]];
}

function light(colour) {
  const [r, g, b] = colour.map((part) => part / 255)
    .map((part) => (part <= 0.03928 ? part / 12.92 : ((part + 0.055) / 1.055) ** 2.4));
  return 0.2126 * r + 0.7152 * g + 0.0722 * b;
}

function contrast(one, other) {
  const [dark, bright] = [light(one), light(other)].sort((a, b) => a - b);
  return (bright + 0.05) / (dark + 0.05);
}

function ownText(node) {
  return [...node.childNodes].some((child) => child.nodeType === 3 && child.data.trim());
}

const rules = {
  'the language is named': (doc) => (doc.documentElement.lang === 'en' ? [] : ['html']),
  'the page has a title': (doc) => (doc.title.trim() ? [] : ['title']),
  'the page can be enlarged': (doc) => all(doc, 'meta[name=viewport]')
    .filter((node) => /user-scalable|maximum-scale/.test(node.content)).map(where),
  'one first heading': (doc) => (all(doc, 'h1').length === 1 ? [] : ['h1']),
  'headings skip no level': (doc) => {
    let level = 0;
    return all(doc, 'h1,h2,h3,h4').filter((node) => {
      const next = Number(node.tagName[1]);
      const skips = next > level + 1;
      level = next;
      return skips;
    }).map(where);
  },
  'one of each landmark': (doc) => ['main', 'body > header', 'body > footer']
    .filter((landmark) => all(doc, landmark).length !== 1),
  'navigation is told apart': (doc) => {
    const names = all(doc, 'nav').map((node) => nameOf(doc, node));
    return names.filter((name, i) => !name || names.indexOf(name) !== i);
  },
  'the first stop skips to the content': (doc) => {
    const first = doc.querySelector('a[href],button,input');
    return first && doc.querySelector(first.getAttribute('href')) ? [] : ['skip'];
  },
  'pictures have a text': (doc) => all(doc, 'img:not([alt])').map(where),
  'fields have a label': (doc) => all(doc, 'input:not([type=hidden]),select,textarea')
    .filter((node) => !(node.labels && node.labels.length && text(node.labels[0]))).map(where),
  'links and buttons have a name': (doc) => all(doc, 'a,button')
    .filter((node) => !nameOf(doc, node)).map(where),
  'names are one of a kind': (doc) => all(doc, '[id]').map((node) => node.id)
    .filter((id, i, ids) => ids.indexOf(id) !== i),
  'references lead somewhere': (doc) => all(doc, '[aria-labelledby]')
    .filter((node) => !nameOf(doc, node)).map(where),
  'regions have a name': (doc) => all(doc, 'section').filter((node) => !nameOf(doc, node)).map(where),
  'lists hold items': (doc) => all(doc, 'ul > *:not(li), ol > *:not(li)').map(where),
  'cells have headers': (doc) => all(doc, 'table')
    .filter((node) => !node.querySelector('th[scope=col]') || !node.querySelector('th[scope=row]'))
    .map(where),
  'the order of the keyboard is that of reading': (doc) => all(doc, '[tabindex]').map(where),
  'no script, and no style of an element': (doc) =>
    all(doc, 'script,[style],[onclick],[onload]').map(where),
  'texts stand out from their ground': (doc, view) => all(doc, 'body *')
    .filter((node) => ownText(node) && isShown(view, node))
    .filter((node) => {
      const ink = colours(view.getComputedStyle(node).color)[0];
      return grounds(view, node).some((ground) => contrast(ink, ground.slice(0, 3)) < 4.5);
    }).map(where),
  'targets are large enough': (doc, view) =>
    all(doc, 'a,button,summary,select,textarea,input:not([type=hidden])')
    .filter((node) => isShown(view, node))
    .filter((node) => node.getBoundingClientRect().height < 24 && !node.closest('.list li'))
    .map(where),
  'no text is cut off': (doc, view) => all(doc, 'body *')
    .filter((node) => view.getComputedStyle(node).overflowX !== 'visible' && isShown(view, node))
    .filter((node) => node.scrollWidth > node.clientWidth && node.tagName !== 'INPUT').map(where),
  'nothing sticks out sideways': (doc, view) => {
    const wide = doc.documentElement.scrollWidth > view.innerWidth;
    const sticks = (node) => node.getBoundingClientRect().right > view.innerWidth + 1;
    return wide ? all(doc, 'body *').filter(sticks).map(where).slice(0, 3).concat('page') : [];
  },
};

function look(page, width) {
  return new Promise((done) => {
    const frame = document.createElement('iframe');
    frame.width = width;
    frame.height = 900;
    frame.onload = () => {
      const found = [];
      for (const [name, rule] of Object.entries(rules))
        for (const place of rule(frame.contentDocument, frame.contentWindow))
          found.push(`${page.name} at ${width}: ${name}: ${place}`);
      done(found);
    };
    frame.srcdoc = page.html;
    document.body.append(frame);
  });
}

async function run(pages) {
  const found = [];
  for (const page of pages)
    for (const width of [1280, 390, 320])
      found.push(...await look(page, width));
  const result = { rules: Object.keys(rules).length, pages: pages.length, found };
  document.body.textContent = `RESULT${JSON.stringify(result)}END`;
}
